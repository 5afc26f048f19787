<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>%1 정보</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>%1 후원</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>감사의 말</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>%1 % – %2</source>
        <translation>%1% – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>지금은 사용할 수 없음</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>지금은 사용할 수 없음</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>최고 %1
최저 %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>최고 %1 · 최저 %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>서버에 연결할 수 없습니다. 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>서버가 보고서를 거부했습니다(%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>볼륨 기능</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>볼륨의 크기가 표시된 대로이며, 기록한 내용을 그대로 유지합니까?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>검사할 공간</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>다시 읽기</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>빠른 검사: 샘플만</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>검사 시작</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>보고서 저장…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>보고서를 텍스트로 복사</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>새 검사</translation>
    </message>
</context>
<context>
    <name>CapacityKey</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>CapacityLive</name>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>CapacityPane</name>
    <message>
        <source>Capacity of %1</source>
        <translation>%1의 용량</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>측정으로 돌아가기</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>검사한 공간의 지도</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>공간 전체의 속도, 최고 %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>읽기</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>이 볼륨은 기록한 내용 중 처음 %1만 유지합니다.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>이 볼륨은 %1라고 표시하지만, 처음 %2만 유지합니다.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>이 볼륨은 %1라고 표시하지만, 처음 약 %2만 유지합니다.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>%1 위치의 블록 하나가 변경된 채 읽혔습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%2 위치의 블록 %1개가 변경된 채 읽혔습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>블록 %1개가 변경된 채 읽혔습니다. 첫 위치는 %2입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%2 중 %1 분량이 변경된 채 읽혔습니다. 첫 블록의 위치는 %3입니다.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>%1 위치의 블록 하나가 처음에는 올바르다가 나중에 변경되었습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%2 위치의 블록 %1개가 처음에는 올바르다가 나중에 변경되었습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>블록 %1개가 처음에는 올바르다가 나중에 변경되었습니다. 첫 위치는 %2입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%2 중 %1 분량이 처음에는 올바르다가 나중에 변경되었습니다. 첫 블록의 위치는 %3입니다.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>%1 위치의 블록 하나를 읽을 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>%2 위치의 블록 %1개를 읽을 수 없습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>블록 %1개를 읽을 수 없습니다. 첫 위치는 %2입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>%2 중 %1 분량을 읽을 수 없습니다. 첫 블록의 위치는 %3입니다.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>%1 위치의 블록 하나에 쓸 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>%2 위치의 블록 %1개에 쓸 수 없습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>블록 %1개에 쓸 수 없습니다. 첫 위치는 %2입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>기록한 %2 외에 %1 분량을 쓸 수 없습니다. 첫 블록의 위치는 %3입니다.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>%1 위치의 블록 하나는 다시 시도해야만 쓰거나 읽을 수 있었습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%2 위치의 블록 %1개는 다시 시도해야만 쓰거나 읽을 수 있었습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>블록 %1개는 다시 시도해야만 쓰거나 읽을 수 있었습니다. 첫 위치는 %2입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%2 중 %1 분량은 다시 시도해야만 쓰거나 읽을 수 있었습니다. 첫 블록의 위치는 %3입니다.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>%1 위치의 블록 하나가 기록한 대로 읽히지 않았습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%2 위치의 블록 %1개가 기록한 대로 읽히지 않았습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>블록 %1개가 기록한 대로 읽히지 않았습니다. 첫 위치는 %2입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%2 중 %1 분량이 기록한 대로 읽히지 않았습니다. 첫 블록의 위치는 %3입니다.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>검사가 중지되기 전에 기록한 대로 읽히지 않은 블록이 발견되었습니다. 첫 위치는 %1입니다.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>볼륨에 %2 중 %1까지만 쓸 수 있었고, 그 이후는 모두 거부되었습니다.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>데이터를 다시 읽기 전에 검사가 중지되었습니다.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>%2 중 %1 분량이 기록한 대로 읽힌 시점에 검사가 중지되었습니다.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>샘플은 기록한 내용을 유지하지만, 서로 가까이 모여 있습니다.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>%1 전체에 걸친 샘플이 기록한 내용을 유지하지만, 이것이 증명은 아닙니다.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>여유 공간 %1 전체에 걸친 샘플이 기록한 내용을 유지하지만, 이것이 증명은 아닙니다.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>%2 중 %1 이후 볼륨의 할당량을 모두 사용했습니다. 기록한 부분은 내용을 유지합니다.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>%2 중 %1 이후 볼륨이 가득 찼습니다. 기록한 부분은 내용을 유지합니다.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>%1 전체가 기록한 대로 읽혔지만 대부분 메모리에서 읽은 것이므로, 디스크에 대해서는 알려 주는 바가 적습니다.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>%1 전체가 기록한 내용을 유지합니다.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>여유 공간 %1 전체가 기록한 내용을 유지합니다.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>표기 용량</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>실제 용량</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>검사할 공간</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>여유 공간 %1</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>샘플</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1개, %2마다 하나</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>처음 읽을 때는 올바른 내용이었습니다.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>%1(%2): 비트 하나가 반전되었습니다.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>%1(%2): 비트 %3개가 반전되었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>이유를 알 수 없음</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>%1(%2): 읽을 수 없습니다(%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>%1(%2): 쓸 수 없습니다(%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>%1(%2): 다시 시도해야만 쓰거나 읽을 수 있었습니다(%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>%1(%2): 다른 곳에 기록한 내용이 읽혔습니다.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>%1(%2): %3에 기록한 블록이 반복해서 읽혔습니다.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>%1(%2): %3에 기록한 내용이 읽혔습니다.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>%1(%2): 0으로 채워진 내용이 읽혔습니다.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>%1(%2): 이곳에 기록한 적이 없는 내용이 읽혔습니다.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>어떤 검사로도 알 수 없는 것: 기존 파일이 차지한 공간이 온전한지, 드라이브에 예비 공간이 얼마나 남았는지, 복구된 블록이 오래갈지 여부.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>이 볼륨은 파일을 메모리에 보관합니다. 디스크는 검사하지 않았습니다.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>읽은 내용 중 %1%만 디스크에서 왔습니다. 컴퓨터의 메모리보다 많은 양을 검사하십시오.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>이 볼륨이 있는 디스크를 확인할 수 없으므로, 읽은 내용이 캐시에서 왔을 수 있습니다.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>검사가 중지되어 다시 읽지 않은 부분은 알 수 없습니다.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>빠른 검사는 몇 곳에만 기록합니다. 대부분의 가짜 용량을 몇 초 만에 찾아내지만, 찾지 못했다고 해서 문제가 없다는 증명은 아닙니다.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>계획보다 적게 검사했습니다. 다른 프로그램이 공간을 차지했을 수 있습니다.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>기록됨</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>다시 읽음</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>%1 후 다시 읽음</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>기록한 대로</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>변경됨</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>읽지 못함</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>쓰지 못함</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>재시도로 성공</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>디스크에서 읽음</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>그 외 한 곳 더 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>그 외 %1곳 더 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>%1의 용량</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>준비 중…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>샘플 쓰는 중</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>쓰는 중</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>읽어 확인하는 중</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>기다리는 중</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>다시 읽는 중</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>기록 안 됨</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>쓸 수 없음</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>읽기</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>이 볼륨의 지난 측정과 비교</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>시간에 따른 쓰기</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>시간에 따른 읽기</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>측정 비교</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>벤치마크 %1개 비교</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>스캔하여 사용해 보기</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>디스크의 측정값이 아님</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>측정 %1개 비교</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>비교 이미지 공유</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>차이의 기준</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>진단 정보 첨부</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>이 세션의 최근 활동입니다. 파일 이름, 서버, 계정은 기록되기 전에 익명 토큰으로 바뀝니다.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>보기…</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>테스트 및 설정 숨기기</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>테스트 및 설정 표시</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>이 보고서의 이름을 바꿉니다. 이름은 공유하는 이미지에도 표시됩니다.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>보고서 제목</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>보고서 이미지 공유</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>측정 삭제</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>접기</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>디스크의 측정값이 아님</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>디스크를 가득 채우시겠습니까?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>이 테스트는 %1만 남을 때까지 기록한 다음 모두 제거합니다. 큰 드라이브에서는 시간이 오래 걸리며, 테스트가 끝날 때까지 이 공간이 필요한 다른 프로그램은 공간이 부족해집니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>디스크 채우기</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>폴더에서 보기: %1</translation>
    </message>
</context>
<context>
    <name>FormerCheck</name>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>FormerChecks</name>
    <message>
        <source>Former checks</source>
        <translation>이전 검사</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>고장 임박</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>S.M.A.R.T.</source>
        <translation>S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation>기록(&amp;S)</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>텍스트로 복사</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown 표로 복사</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>측정 저장…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV 내보내기…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>읽기</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>%1 삭제</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>이 측정 삭제</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>벤치마크 준비 완료</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>시작하려면 볼륨을 선택하십시오</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>왼쪽에서 테스트와 설정을 조정한 다음 [벤치마크 실행]을 누르십시오.</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>도구 모음에서 마운트된 볼륨이나 폴더를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>드라이브 %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>전체 측정</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>메뉴 모음</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>비교할 측정 선택</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>이전 측정</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>%1개 비교</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>현재 측정</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>저장된 측정을 모두 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>모두 삭제</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>작업 폴더:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>임시 폴더이며, 선택한 곳에 기록된 후 제거됩니다</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>다른 이름으로 저장</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick 측정</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>디스크 속도 및 볼륨 분석기</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>스캔하여 내 디스크 측정하기</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>보고서 종류</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>버그</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>기능 요청</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>요약 — 한 줄 설명</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>자세한 내용</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>%1에 어떤 기능이 있으면 좋겠습니까?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>무슨 일이 있었습니까? 재현 단계와 예상한 결과를 적어 주십시오.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>이메일 — 선택 사항, 답장을 원하는 경우</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>%1 %2 · %3 · %4 정보가 첨부됩니다.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>감사합니다</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>문제 보고</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>보고서가 제출되었습니다. %1 개선에 도움을 주셔서 감사합니다.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>웹에서 보고:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>보내기</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>벤치마크 실행</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>시간에 따른 처리량</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>음영: 각 테스트의 마지막 3분의 1이며, 그 중앙값이 지속 속도입니다. 삼각형: 최고 및 최저 속도.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>순차 쓰기</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>순차 읽기</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>보고서 이름 바꾸기…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>보고서 이미지 공유…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>측정값 복사</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>텍스트로 복사</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown 표로 복사</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>측정 파일 저장…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV 내보내기…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>이 볼륨의 지난 측정과 비교</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>측정 삭제</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>용량 검사를 실행 중입니다</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>벤치마크를 실행 중입니다</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>벤치마크 실패</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>쓰기 %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>읽기 %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>벤치마크 완료</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>용량 검사 완료</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>용량 검사 실패</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>이 측정값에 대하여</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>설명의 의미</translation>
    </message>
</context>
<context>
    <name>SMARTHeader</name>
    <message>
        <source>S.M.A.R.T.</source>
        <translation>S.M.A.R.T.</translation>
    </message>
</context>
<context>
    <name>SMARTList</name>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>이 측정값을 텍스트 파일로 저장</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>쓰기 블록</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>읽기 블록</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>임의 블록</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>캐시 우회</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>이미지 복사</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>다른 이름으로 저장…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>이메일로 보내기…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>텍스트로 복사</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown 표로 복사</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>측정 파일 저장…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>측정 저장…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV 내보내기…</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>테스트 및 설정</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>검사 중…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>실행 중…</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1은(는) 무료입니다.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>유용하셨다면 후원으로 개발이 이어지도록 도와주십시오.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Ko-fi에서 후원</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>일주일 동안 숨기기</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>이미 %1 후원함</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
</context>
<context>
    <name>TarnwickCommands</name>
    <message>
        <source>&amp;Tarnwick</source>
        <translation>&amp;Tarnwick</translation>
    </message>
    <message>
        <source>About Ondel Tarnwick</source>
        <translation>Ondel Tarnwick 정보</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>폴더 선택…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>측정 파일 열기…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>실행(&amp;R)</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>벤치마크 실행</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>용량 검사…</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>삭제 취소</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Tarnwick 도움말</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>문제 보고…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Tarnwick 후원…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation>모든 여유 공간</translation>
    </message>
    <message>
        <source>No</source>
        <translation>안 함</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>%1 후</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>선택한 공간 전체에 걸쳐 샘플을 쓰고, 다시 읽은 다음 제거합니다. 몇 초면 끝나고 대부분의 가짜 용량을 찾아내지만, 찾지 못했다고 해서 문제가 없다는 증명은 아닙니다.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>%1 분량을 쓰고, 다시 읽어 비교한 다음 제거합니다. 사용자의 파일은 건드리지 않습니다.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>모든 여유 공간에 쓰고, 다시 읽어 비교한 다음 제거합니다. 사용자의 파일은 건드리지 않습니다.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>모든 여유 공간(약 %1)에 쓰고, 다시 읽어 비교한 다음 제거합니다. 큰 볼륨에서는 몇 시간이 걸리며, 그동안 다른 프로그램에는 볼륨이 가득 찬 상태가 됩니다. 사용자의 파일은 건드리지 않습니다.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>검사 %1%</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>한 구간</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>%1개 구간</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1~%2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>검사 시각</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>텍스트를 복사했습니다</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>텍스트를 복사할 수 없습니다.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>파일을 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>“%1” 이름으로 저장했습니다</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>예정</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>A few seconds</source>
        <translation>몇 초</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>약 %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>약 %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>약 %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>이 테스트 %1 남음</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>작업 %1회</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>준비 중…</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::RunExports</name>
    <message>
        <source>%1 runs</source>
        <translation>측정 %1개</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>텍스트를 복사했습니다</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>표를 복사했습니다</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>텍스트를 복사할 수 없습니다.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>측정 목록</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick 측정</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>CSV 표</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>파일을 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>“%1” 이름으로 저장했습니다</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>기준</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>디스크의 측정값이 아님: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>디스크의 측정값이 아님: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>임의 %1 읽기</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>임의 %1 쓰기</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>파일 작업</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>읽기/쓰기</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>임의</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>파일 시스템</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>여유</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>캐시</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>우회</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>측정값을 복사했습니다</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>측정값을 복사할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, 디스크의 측정값이 아님</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>이미지를 복사했습니다</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>이미지를 복사할 수 없습니다.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>이미지를 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>“%1” 이름으로 저장했습니다</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>폴더를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>메일 프로그램을 열 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>스파스 파일</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>복제</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>스냅샷</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>하드 링크</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>심볼릭 링크</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>확장 속성</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>대소문자 구분 알 수 없음</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>대소문자 구분</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>대소문자 구분 안 함</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>폴더를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>파일 시스템</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>형식</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>최적 I/O 크기</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>블록 크기</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>최대 파일 이름</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1자</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>최대 경로</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>여유</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>알 수 없음: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>S.M.A.R.T. 수치 없음: %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>자동으로 업데이트 확인</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>하루에 한 번 정도 새 버전을 찾고, 설치하기 전에 물어봅니다. 끄면 [업데이트 확인]을 선택할 때만 확인합니다.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>지금 확인</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>이 빌드는 스스로 업데이트하지 않습니다. 개발 빌드는 업데이트 피드 없이 만들어지므로 릴리스로 바뀔 수 없습니다.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>Tarnwick 후원</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick은 무료이며 개발자 한 명이 만듭니다. 후원금은 호스팅 비용과 개발을 계속하는 데 드는 시간에 쓰입니다.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Ko-fi에서 후원…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>이미 Tarnwick을 후원했습니다</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>사이드바 아래쪽의 후원 안내를 숨깁니다.</translation>
    </message>
</context>
<context>
    <name>TestRow</name>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>ThroughputChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>시간에 따른 처리량</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>측정 %1개를 삭제했습니다</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>측정을 삭제했습니다</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>릴리스 정보</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>이 버전 건너뛰기</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>자동으로 업데이트를 확인하시겠습니까?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>업데이트 확인 중…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>최신 버전입니다</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>%1의 새 버전이 있습니다</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>업데이트 다운로드 중…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>업데이트의 서명 확인 중…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>업데이트를 설치할 준비가 되었습니다</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>업데이트를 확인할 수 없습니다</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>업데이트를 가져올 수 없습니다</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1에서 하루에 한 번 정도 새 버전을 찾을 수 있습니다. 사용자나 디스크에 대한 정보는 보내지 않으며, 다운로드하기 전에 항상 물어봅니다.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 버전이 최신입니다.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>현재 버전은 %1입니다. %2의 다운로드 크기는 %3입니다.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2 버전은 제작자가 서명했습니다. 이후는 시스템의 소프트웨어 설치 프로그램에서 진행합니다.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>자동으로 확인</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>업데이트 설치</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>확인 안 함</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>나중에 알림</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>업데이트 서버에 연결할 수 없습니다. 인터넷 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>업데이트 서버의 응답을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>이 빌드의 업데이트 서버는 보안 연결을 사용하지 않으므로 아무것도 요청하지 않았습니다.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>%1의 새 버전이 있지만, 안전하게 받는 데 필요한 정보를 업데이트 서버가 제공하지 않습니다.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>업데이트를 다운로드할 수 없습니다. 인터넷 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>다운로드한 파일의 길이가 업데이트와 맞지 않아 버렸습니다.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>다운로드한 파일에 %1 제작자의 서명이 없어 버렸습니다.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>임시 폴더에 업데이트를 저장할 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>업데이트를 임시 폴더에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>이 시스템에는 업데이트 패키지를 열 수 있는 프로그램이 없습니다.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>볼륨 선택</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>선택한 볼륨 없음</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>마운트된 볼륨</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>폴더 선택…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>용량 검사…</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>지속 속도: 테스트 마지막 3분의 1의 중앙값으로, 긴 복사가 안정되는 속도입니다. 최고와 최저는 가장 빠른 0.1초와 가장 느린 0.1초의 속도입니다.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>데이터가 시스템 메모리를 거치지 않게 하여 캐시가 아닌 디스크를 측정합니다.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>큰 파일 하나를 처음부터 끝까지 쓰고 디스크로 플러시합니다. 이 볼륨으로 길게 복사하는 것과 같습니다.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>큰 파일 하나를 처음부터 끝까지 읽습니다. 이 볼륨에서 길게 복사하는 것과 같습니다.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>파일의 흩어진 위치에 있는 블록을 대부분의 프로그램처럼 한 번에 하나씩 읽습니다. 한꺼번에 여러 개를 읽으면 기다리는 시간이 아니라 드라이브의 큐를 측정하게 됩니다. IOPS는 초당 이러한 작업의 수입니다.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>파일의 흩어진 위치에 있는 블록을 대부분의 프로그램처럼 한 번에 하나씩 씁니다. 한꺼번에 여러 개를 쓰면 기다리는 시간이 아니라 드라이브의 큐를 측정하게 됩니다. IOPS는 초당 이러한 작업의 수입니다.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>빈 파일을 만들고, 찾고, 이름을 바꾸고, 삭제합니다. 측정값은 초당 만든 파일의 수입니다.</translation>
    </message>
</context>
</TS>
