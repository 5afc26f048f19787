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
    <name>AppDelegateText</name>
    <message>
        <source>%1 % – %2</source>
        <extracomment>The title of the window during a run: how much is done, and the program&apos;s name</extracomment>
        <translation>%1% – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <extracomment>Button: opens a menu</extracomment>
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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>공간이 부족합니다. %1가 필요하지만 여유 공간은 %2뿐입니다.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>I/O 오류: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>이곳에 쓸 수 없습니다. 볼륨이 읽기 전용이거나 폴더에서 쓰기를 허용하지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>테스트 파일이 임의 블록 크기에 비해 너무 작습니다.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>순차 쓰기</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>순차 읽기</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>임의 읽기</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>임의 쓰기</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>파일 작업</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>파일/초</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>최대 %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>측정 중에 폴더가 제거되었거나 볼륨이 분리되었습니다.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>볼륨이 분리되었거나 서버가 사라졌습니다.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>측정 중에 드라이브가 오류를 보고했거나 분리되었습니다.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>볼륨에서 읽기만 가능합니다. 시스템은 볼륨에서 오류를 발견하면 이 상태로 전환합니다.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>측정 중에 볼륨이 가득 찼거나 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>파일 시스템 또는 이 세션의 제한 때문에 이 크기의 파일을 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>측정 중에 폴더의 권한이 바뀌었거나 시스템이 이곳에서의 작업을 금지합니다.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>이 크기의 블록에 필요한 메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>지금 열려 있는 파일이 너무 많습니다. 프로그램을 몇 개 닫고 다시 시도하십시오.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>응답 헤더가 너무 깁니다</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>사용할 수 있는 프록시가 없습니다</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>libcurl.so.4를 불러올 수 없습니다</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>이 샌드박스에는 네트워크가 없어 보고서를 보낼 수 없습니다.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <source>Capacity of the volume</source>
        <translation>볼륨의 용량</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>측정 목록으로 돌아가기</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>읽기</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>어떤 검사로도 알 수 없는 것: 기존 파일이 차지한 공간이 온전한지, 드라이브에 예비 블록이 얼마나 남았는지, 복구된 블록이 오래갈지 여부.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>이 파일 시스템은 기록하지 않고는 공간을 확보하지 못하므로 샘플을 분산할 수 없었습니다. 결과로는 볼륨의 크기를 알 수 없습니다. 빠른 검사가 아닌 검사를 실행하십시오.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>빠른 검사는 몇 곳에만 기록합니다. 그 사이는 살펴보지 않았습니다.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>빠른 검사는 몇 곳에만 기록합니다. 대부분의 가짜 용량을 몇 초 만에 찾아내지만, 찾지 못했다고 해서 문제가 없다는 증명은 아닙니다.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>계획보다 적게 검사했습니다. 볼륨이 너무 일찍 가득 찼습니다. 파일 시스템 자체의 데이터가 손실되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>계획보다 적게 검사했습니다. 다른 프로그램이 공간을 차지했을 수 있습니다.</translation>
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
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>실제 크기를 넘어 기록한 내용은 손실되거나 다른 곳의 내용을 파괴합니다. 필요한 내용을 복사해 두고, 이 볼륨을 신뢰하지 마십시오.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>검사가 중지되어 다시 읽지 않은 부분은 알 수 없습니다.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>이 파일 시스템은 체크섬과 일치하지 않는 내용을 돌려주지 않습니다. 이 파일 시스템에서는 변경된 데이터를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>%1의 용량</translation>
    </message>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>이 볼륨은 기록한 내용 중 처음 %1만 유지합니다.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>이 볼륨은 %1로 표시되지만 처음 %2만 유지합니다.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>이 볼륨은 %1로 표시되지만 처음 약 %2만 유지합니다.</translation>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>이 파일 시스템에서는 샘플을 분산할 수 없습니다. 한곳의 %1만 검사했으며, 기록한 내용을 유지합니다.</translation>
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
        <translation>%2 중 %1까지 쓰고 나서 볼륨의 할당량이 소진되었습니다. 기록한 부분은 내용을 유지합니다.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>%2 중 %1까지 쓰고 나서 볼륨이 가득 찼습니다. 기록한 부분은 내용을 유지합니다.</translation>
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
        <source>about %1</source>
        <translation>약 %1</translation>
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
        <source>In one place</source>
        <translation>한곳에 모임</translation>
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
        <translation>읽어 확인함</translation>
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
        <translation>그 외에 한 곳 더 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>그 외에 %1곳 더 있습니다.</numerusform>
        </translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>읽기</translation>
    </message>
</context>
<context>
    <name>CommandLineText</name>
    <message>
        <source>Usage: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Opens the disk speed and volume analyzer, with the first folder chosen and run files (*.tarnwickrun) shown.
  --check-capacity  go on to the check of that folder&apos;s volume
  --choose-folder   ask for a folder
</source>
        <extracomment>tarnwick is the name of the command; FOLDER, FILE, URL and what begins with -- stay</extracomment>
        <translation>사용법: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
디스크 속도 및 볼륨 분석기를 열어 첫 번째 폴더를 선택하고 측정 파일(*.tarnwickrun)을 표시합니다.
  --check-capacity  해당 폴더가 있는 볼륨의 검사로 이동합니다
  --choose-folder   폴더를 묻습니다
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1: 열 수 있는 폴더나 측정 파일이 아닙니다.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>시간에 따른 쓰기 속도</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>시간에 따른 읽기 속도</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>기준</translation>
    </message>
    <message>
        <source>%1, %2: %3 %4</source>
        <extracomment>%1 is what was measured, %2 the name of a run, %3 the figure, %4 its unit</extracomment>
        <translation>%1, %2: %3 %4</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>측정 비교</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>벤치마크 %n개 비교</numerusform>
        </translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>측정 %n개 비교</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>비교 이미지 공유</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>차이의 기준</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>임의 읽기</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>임의 쓰기</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>파일 작업</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>회/초</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>여유 %1</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>디스크 채우기 테스트</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>%1 테스트</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>읽기/쓰기 %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>쓰기 %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>읽기 %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>임의 %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>캐시 사용 안 함</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>캐시 사용</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>DialogsText</name>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>열기</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick 측정</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>“%1” 파일이 손상되었거나 Tarnwick 측정이 아닙니다.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>“%1” 항목은 열 수 있는 폴더나 측정 파일이 아닙니다.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>“%1” 외 %2개 파일이 손상되었거나 Tarnwick 측정이 아닙니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>“%1” 외 %2개 항목은 열 수 있는 폴더나 측정 파일이 아닙니다.</numerusform>
        </translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>측정: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
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
        <translation>이 테스트는 여유 공간이 %1만 남을 때까지 기록한 다음 모두 제거합니다. 대용량 드라이브에서는 시간이 오래 걸리며, 테스트가 끝날 때까지 드라이브의 공간이 필요한 다른 프로그램은 공간이 부족해집니다.</translation>
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
    <name>Format</name>
    <message>
        <source>%1 %</source>
        <extracomment>A percentage: %1 is the number</extracomment>
        <translation>%1%</translation>
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
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>고장 임박</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>확인됨</translation>
    </message>
    <message>
        <source>S.M.A.R.T.</source>
        <translation>S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>%1 is the verdict (Failing, Verified), %2 a sentence without its full stop</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>HealthText</name>
    <message>
        <source>Critical warning</source>
        <translation>심각한 경고</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>사용한 수명</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>남은 예비 블록</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>예비 블록 임곗값</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>사용 시간</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>전원 켜짐 횟수</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>헤드 로드 횟수</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>비정상 종료 횟수</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>쓴 데이터</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>읽은 데이터</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>호스트 읽기 명령 수</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>호스트 쓰기 명령 수</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>컨트롤러 사용 시간</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>재할당된 섹터</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>보류 중인 섹터</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>수정 불가 섹터</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>보고된 수정 불가 오류</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>스핀 재시도 횟수</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>인터페이스 CRC 오류</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>미디어 오류</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>오류 로그 항목 수</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>예비 블록이 임곗값 미만</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>신뢰성 저하</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>백업 장치 고장</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1년</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>디스크 %2개 중 %1개 응답</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>이 경로에 연결된 장치가 없습니다</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>%1에 연결된 디스크가 없습니다</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1: 블록 장치가 아닙니다</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1: 절전 상태인지 알려 주지 않아 그대로 두었습니다</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1: 절전 상태여서 그대로 두었습니다</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1: S.M.A.R.T.가 없거나 꺼져 있습니다</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1: S.M.A.R.T. 인터페이스가 없습니다</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1: S.M.A.R.T. 명령을 전달하지 않습니다</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1: NVMe 건강 상태 로그를 제공하지 않습니다</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1: 관리자만 조회할 수 있습니다</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1: 이 프로세스에서 접근할 수 없습니다</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2가 응답하지 않습니다</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2가 %1에 대해 응답하지 않습니다</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1: 응답하지 않습니다</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 버전은 NVMe 드라이브의 건강 상태를 읽지 않습니다(2.10 버전은 읽음)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2에 %1의 건강 상태 수치가 없습니다</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2에 %1의 건강 상태 판정이 없습니다</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2가 %1에 연결된 드라이브를 알지 못합니다</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>%1의 ATA S.M.A.R.T.(수치 없이 판정만 제공)</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>%1의 ATA S.M.A.R.T.</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>%1의 NVMe 건강 상태 로그</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>%1의 UDisks2 정보, %2 min 전에 읽음</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>%1의 UDisks2 정보</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Two sentences: how many disks answered, and why others did not</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>Two sentences, the first on one disk and the second on another</extracomment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>Two sentences: why a disk gives no figures itself, and why the system&apos;s service gives none</extracomment>
        <translation>%1. 또한 %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1일</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>고장 임박</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>확인됨</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>읽기</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>%1 삭제</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>이 측정 삭제</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>중지하고 파일을 제거하는 중</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>검사 결과를 JSON으로 출력할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>대소문자 구분</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>대소문자 유지</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>스파스 파일</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>하드 링크</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>심볼릭 링크</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>확장 속성</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>명명된 스트림</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>접근 제어 목록</translation>
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
        <source>Journal</source>
        <translation>저널</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>저널 활성</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>봉인됨</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>no</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>형식</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>사용 가능</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>사용됨</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>암호화</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>마운트 위치</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>블록 크기</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>최적 전송 크기</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>최대 이름 길이</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>최대 경로 길이</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>최대 링크 수</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>연결 방식</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>출처</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>인터페이스</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(주의)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>파일 시스템</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>건강 상태</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>S.M.A.R.T. 수치 없음: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>창 프로그램과 함께 제공되는 %1을(를) 시작할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1: 응답하지 않습니다</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1은(는) 폴더입니다</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1은(는) 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1이(가) 이미 있으며 측정이 들어 있지 않습니다. --force를 지정하면 대체합니다</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>이 측정의 값 하나가 파일에 저장할 수 있는 범위를 벗어났습니다.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>기록을 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>결과를 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1은(는) 폴더가 아닙니다</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1은(는) 이 샌드박스에 없습니다. 샌드박스에는 컴퓨터의 일부 폴더만 있습니다</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1은(는) 샌드박스 자체의 것이며, 컴퓨터에 있는 같은 이름의 폴더는 샌드박스에서 보이지 않습니다.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>이 폴더에 있는 다른 측정의 파일이 사용 중이므로 제거하지 않았습니다.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: 미디어로 플러시하지 못했습니다(%2). 기록한 내용이 모두 있지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>준비: 미디어로 플러시하지 못했습니다(%1). 기록한 내용이 모두 있지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>측정 파일을 임시 폴더에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>측정을 기록에 추가할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1이(가) 측정 파일의 최대 크기(%2)보다 큽니다</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>%1을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>표준 입력</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>표준 입력이 측정 파일의 최대 크기(%1)보다 큽니다</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>표준 입력이 측정 파일이 아닙니다: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1은(는) 측정 파일이 아닙니다: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>이미지를 그릴 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>이미지를 그릴 수 없거나 임시 폴더에 쓸 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>어두운 색상으로 그립니다</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>측정 파일은 &quot;run --handoff&quot;가 측정 하나에 대해 쓰는 파일입니다. 이미지는 너비가 1616픽셀이고 여백이 투명한
PNG 파일이며, 그 경로를 출력합니다. 디스플레이가 필요하지 않습니다. 제목이 같은 이미지는 이전 이미지를 대체합니다.
이미지는 세션이 끝나거나 시스템이 임시 폴더를 비울 때까지 남습니다.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>종료 상태: 0 완료, 1 파일을 읽거나 이미지를 만들 수 없음, 2 잘못된 사용법.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>공유할 측정의 이미지 또는 여러 측정을 비교한 이미지를 그립니다</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>쓰고 다시 읽을 양(기본값: 모든 여유 공간)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>항상 남겨 둘 여유 공간(기본값: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>범위 전체의 샘플을 몇 초 만에 검사합니다. 가짜 용량을 찾아내지만,
찾지 못했다고 해서 문제가 없다는 증명은 아닙니다</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>S초 후에 모든 내용을 다시 읽습니다</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>판정, 결론 문장, 발견한 모든 내용을 JSON 객체 하나로 출력합니다</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>FOLDER 안의 숨김 폴더에 블록마다 내용이 다른 파일을 쓰고, 시스템의 캐시를 거치지 않고 다시 읽어 모두 비교한 다음
제거합니다. Ctrl+C를 눌러도 제거합니다. 사용자의 파일은 건드리지 않지만, 용량이 가짜인 장치에서는 다른 모든 사용과
마찬가지로 실제 크기를 넘는 쓰기가 그곳의 내용을 파괴할 수 있습니다.
--quick은 샘플만 씁니다. 강제 종료된 검사의 파일은 FOLDER에서의 다음 측정이나 검사에서 제거됩니다.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES는 숫자만 쓰거나 K, M, G, T를 붙여 씁니다(KiB, MiB, GiB, TiB: 1024배씩).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>종료 상태: 0 문제를 찾지 못함, 1 실패, 2 잘못된 사용법, 3 결함을 찾음, 130 시그널로 중지됨.
그때까지 찾은 내용은 출력됩니다.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>볼륨의 크기가 표시된 대로이며 기록한 내용을 유지하는지 검사합니다</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>text(기본값), markdown, csv 또는 json 형식</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>--output이 내용에 관계없이 파일을 대체하도록 허용합니다</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>정보를 JSON 객체 하나로 출력합니다</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>목록을 JSON 배열 하나로 출력합니다</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>어디에도 쓰지 않습니다. 시스템이 알려 주지 않는 항목은 &quot;--&quot; 또는 &quot;알 수 없음&quot;으로 표시되고 JSON 객체에서는
제외됩니다.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>각 파일 시스템은 가장 짧은 마운트 지점으로 한 번만 표시됩니다. 시스템과 그 패키지 및 컨테이너가 자체적으로
마운트한 항목은 제외됩니다. 제때 응답하지 않는 서버의 용량은 표시되지 않습니다.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>드라이브를 살펴보기만 합니다. 절전 중인 드라이브를 깨우거나 기능을 켜지 않습니다. 건강 상태 정보의 출처 또는 정보가
없는 이유는 &quot;facts&quot;로 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>FOLDER가 있는 볼륨, 파일 시스템, 드라이브와 그 건강 상태를 표시합니다</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>마운트된 볼륨의 목록을 표시합니다</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>FOLDER가 있는 드라이브의 건강 상태를 출력합니다</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>사용법: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>이 도움말을 표시합니다</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>터미널용 Ondel Tarnwick: 디스크에 직접 기록하여 속도를 측정하고 다시 제거합니다.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>이 도움말을 표시합니다. 명령 뒤에서는 해당 명령의 옵션을 표시합니다</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>버전을 표시합니다</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>&quot;export&quot;가 쓸 파일</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>&quot;delete&quot;가 모든 측정을 삭제하도록 허용합니다</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION은 다음 중 하나입니다</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>측정마다 한 줄, 최신순이며 각 줄은 측정의 이름으로 시작합니다(기본값)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>&quot;show&quot;와 같이 --format의 형식으로 측정을 출력합니다</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>--output의 FILE에 측정을 씁니다. 형식은 --format 또는 FILE의 이름을 따릅니다: .csv, .json, .md,
.txt 또는 측정이 하나일 때 .tarnwickrun</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>묻지 않고 측정을 영구히 삭제합니다</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>RUN은 목록에 표시된 이름이나 id의 처음 네 글자 이상으로 지정합니다. 지정하지 않으면 모든 측정을 뜻하며, 이때
&quot;delete&quot;에는 --all이 필요합니다. 열려 있는 창에는 그 창으로 돌아가는 즉시 반영됩니다. --output은 기존 파일이
비어 있거나 측정이 들어 있을 때만 대체하며, --force를 지정하면 다른 파일도 대체합니다.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>종료 상태: 0 완료, 1 해당 측정이 없거나 실패, 2 잘못된 사용법.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>창에서 보관하는 측정의 목록을 보거나, 표시하거나, 내보내거나, 삭제합니다</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES는 숫자만 쓰거나 K, M, G, T를 붙여 씁니다(KiB, MiB, GiB, TiB: 1024배씩). 블록은 4096바이트 페이지 단위로
올림합니다. 기본값은 창과 같으므로 측정값을 서로 비교할 수 있습니다. 단, 순차 테스트의 블록은 예외로, 창에서는
&quot;facts&quot;에 표시되는 &quot;최적 전송 크기&quot;를 사용합니다.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>모든 내용은 FOLDER 안의 숨김 폴더에 쓰고 마지막에 제거하며, Ctrl+C를 눌러도 제거합니다. 강제 종료된 측정이
FOLDER에 남긴 파일은 시작하기 전에 제거합니다. 아직 사용 중인 파일은 1초 기다린 후 그대로 둡니다.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>--handoff와 --card의 파일은 세션이 끝나거나 시스템이 임시 폴더를 비울 때까지 남습니다.
--output은 기존 파일이 비어 있거나 측정이 들어 있을 때만 대체합니다(측정 파일, 또는 &quot;show --format&quot;과
&quot;history export&quot;가 json이나 csv로 쓴 파일). --force를 지정하면 다른 파일도 대체합니다. 열려 있는 창은 그 창으로
돌아가는 즉시 --keep이 추가한 측정을 표시합니다. 무언가를 쓸 수 없어도 측정값은 출력되지만, 측정은 실패한 것으로
간주됩니다.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>종료 상태: 0 완료, 1 실패, 2 잘못된 사용법, 130 시그널로 중지됨.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>FOLDER가 있는 파일 시스템을 측정합니다</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>실행할 테스트. 항상 다음 순서로 실행됩니다: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps(기본값: 모두)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>데이터 파일의 크기. fill은 디스크를 채웁니다(기본값: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>--size fill에서 남겨 둘 여유 공간(기본값: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>순차 쓰기의 호출당 바이트 수(기본값: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>순차 읽기의 호출당 바이트 수(기본값: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>임의 작업당 바이트 수(기본값: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>각 임의 테스트의 작업 수(기본값: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>파일 작업 테스트의 파일 수(기본값: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>일반 프로그램처럼 시스템이 데이터 파일을 캐시하도록 허용합니다</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>두 샘플 사이의 최소 시간(초)(기본값: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>JSON 객체 하나를 출력합니다: 계획, 모든 측정값, 모든 샘플, 날짜,
폴더, 볼륨, 파일 시스템, 드라이브, 커널, 그리고 &quot;evidence&quot;와
&quot;remarks&quot;에 관찰한 내용과 그 의미</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>그곳에 측정 파일을 씁니다. 창, &quot;show&quot;, 다른 사람이 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>측정을 창의 기록에 추가합니다</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>창과 &quot;show&quot;에서 쓸 측정 파일을 쓰고 마지막 줄에 경로를 출력합니다.
--json과 함께 쓰면 객체의 &quot;handoffFile&quot;에 넣습니다</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>공유할 측정의 이미지를 밝은 색상이나 어두운 색상으로 그리고 마지막 줄에
경로를 출력합니다. --json과 함께 쓰면 &quot;cardFile&quot;에 넣습니다</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>측정 파일은 &quot;run --handoff&quot;와 &quot;run --output&quot;이 측정 하나에 대해 쓰는 파일입니다. 창의 기록(history.json)과
&quot;show --format json&quot;의 출력에는 여러 측정이 들어 있습니다. &quot;-&quot;는 표준 입력입니다.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>텍스트에서는 여러 측정의 측정값을 막대로 비교합니다. 종류별로 가장 큰 값이 막대를 가득 채우고, 값이 없으면 &quot;--&quot;로
표시합니다. 줄은 터미널 너비 또는 80열에 맞춥니다. Markdown 표는 포럼용입니다. CSV는 측정마다 한 줄이며, 숫자는
스프레드시트와 스크립트에 알맞은 형태입니다. JSON은 측정 파일 내용의 목록입니다.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>표시할 수 없는 파일은 표준 오류에 한 줄로 알리고, 나머지는 표시합니다.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>종료 상태: 0 모두 표시함, 1 일부를 표시하지 못함, 2 잘못된 사용법.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>측정 파일에서 측정을 표시하며, 여러 개이면 나란히 표시합니다</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>기록에 %1 측정이 없습니다</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1에 해당하는 측정이 여러 개입니다</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>측정</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>제목</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>시작하는 중</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>중지하고 테스트 파일을 제거하는 중</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>테스트 파일 준비 중, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>시작하는 중, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>지속</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>최고</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>최저</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>작업 수</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>최대</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>만들기</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>정보 조회</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>그릴 RUNFILE이 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1의 최댓값은 1년입니다</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>%1 옵션이 없습니다</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1에는 값을 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1에는 값이 필요합니다: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 지정은 %2 사용 시에만 가능합니다</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1에는 %2부터 %3까지의 정수가 필요합니다(입력: %4)</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1에는 4096, 64K, 5GiB와 같은 바이트 수가 %2부터 %3까지의 범위에서 필요합니다(입력: %4)</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1에는 0 이상의 초 단위 수가 필요합니다(입력: %2)</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>FOLDER가 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>FOLDER는 한 번에 하나만 지정할 수 있습니다</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1에는 text, markdown, csv, json 중 하나를 지정해야 합니다(입력: %2)</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1에는 파일 이름이 필요합니다</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1에는 피연산자를 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1에는 %2 지정이 필요합니다</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>측정 파일에는 측정을 하나만 저장할 수 있습니다(지정: %1개)</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>FILE의 이름이 .tarnwickrun, .csv, .json, .md, .txt로 끝나지 않으면 %1 지정이 필요합니다</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1에는 RUN 또는 %2 중 하나가 필요합니다</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 지정은 %2 및 %3 사용 시에만 가능합니다</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1에는 list, show, export, delete를 쓸 수 있습니다(입력: %2)</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>명령이 지정되지 않았습니다. %1 참조</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>%1 명령이 없습니다. %2 참조</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>측정할 FOLDER가 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>검사할 FOLDER가 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>FOLDER는 한 번에 하나만 지정할 수 있습니다(추가 입력: %1)</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>FOLDER의 이름이 비어 있습니다</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: %2 테스트는 없으며 %3만 있습니다</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1에는 light 또는 dark를 지정해야 합니다(입력: %2)</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>표시할 FILE이 지정되지 않았습니다</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>경고</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>모든 여유 공간</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <translation>모든 여유 공간(약 %1)에 쓰고, 다시 읽어 비교한 다음 제거합니다. 대용량 볼륨에서는 몇 시간이 걸리며, 그동안 다른 프로그램에는 볼륨이 가득 찬 상태가 됩니다. 사용자의 파일은 건드리지 않습니다.</translation>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1~%2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <extracomment>%1 is the name of a test, %2 how much of it is done</extracomment>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <extracomment>%1 is a rate, %2 its unit, %3 how much is done of how much</extracomment>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>드라이브 %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>완료</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>예정</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 what it does (done, running, to come), %3 its rate</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>몇 초 남음</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>이 테스트 몇 초 남음</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>약 %n s 남음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>이 테스트 약 %n s 남음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>약 %n min 남음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>이 테스트 약 %n min 남음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>약 %n h 남음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>이 테스트 약 %n h 남음</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>작업 %1 / %2회</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>준비 중…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>비교</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>지우기</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>%n개 비교</numerusform>
        </translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>테스트 중에 기록한 내용의 최대 %1만 디스크에 도달했습니다.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>테스트 중에 기록한 내용의 %1만 디스크에 도달했습니다.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>읽은 내용의 최대 %1만 디스크에서 왔습니다.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>읽은 내용의 %1만 디스크에서 왔습니다.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>기록한 내용을 모두 디스크로 플러시하지는 못했습니다: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>테스트 파일을 디스크로 플러시할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>처음 %2까지는 %1, 그 후에는 %3입니다.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>드라이브가 %2 후 %1에 도달했으며(한계 %3), 그때부터 속도가 %4 낮아졌습니다.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>1 s를 넘는 멈춤이 한 번 있었습니다: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>1 s를 넘는 멈춤이 %1번 있었으며, 가장 긴 것은 %2입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>테스트 중에 다른 프로그램이 같은 디스크에서 %1 분량을 전송했습니다.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>드라이브의 %1 링크가 %2 속도로 동작합니다. 드라이브는 %3까지 가능합니다.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>파티션이 %2 크기의 물리 블록 안 %1 위치에서 시작합니다.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>볼륨의 여유 공간이 %1뿐이었습니다.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>테스트의 %1 분량이 %2 크기의 캐시에 들어갈 수 있습니다.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>컴퓨터가 배터리로 동작했습니다.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>프로세서가 절전으로 설정되어 있었습니다.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>컴퓨터가 배터리로 동작했으며 프로세서가 절전으로 설정되어 있었습니다.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>파일 시스템이 변경 내용을 새 위치에 쓰고 데이터의 체크섬을 계산합니다.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>파일 시스템이 변경 내용을 새 위치에 씁니다.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>[캐시 우회]를 켜십시오. 이미 켜져 있으면 컴퓨터의 메모리보다 큰 크기를 선택하십시오.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>데이터를 맡기기 전에 드라이브의 S.M.A.R.T. 상태와 시스템 로그를 확인하십시오.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>시스템에 캐시 우회를 요청했지만 데이터가 캐시를 거쳤습니다.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>컴퓨터의 메모리보다 큰 크기를 선택하거나, 다른 파일 시스템을 통해 아래의 디스크를 테스트하십시오.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>한 번에 그보다 많은 양을 전송하면 더 낮은 속도가 나온다고 예상하십시오.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>드라이브의 통풍을 개선하거나 방열판을 달고, 식은 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>다시 측정하십시오. 멈춤이 또 나타나면 드라이브의 S.M.A.R.T. 상태와 케이블을 확인하십시오.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>다른 프로그램이 디스크를 사용하지 않을 때 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>다른 포트, 슬롯 또는 케이블을 사용해 보십시오.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>1 MiB의 배수에서 시작하도록 파티션을 다시 만드십시오. 이때 내용이 지워집니다.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>공간을 확보하십시오. 많은 드라이브와 파일 시스템은 가득 차면 느려집니다.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>더 큰 크기를 선택하고 [캐시 우회]를 켜십시오.</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>전원에 연결하고 절전을 끈 상태에서 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>이 볼륨이 있는 디스크를 확인할 수 없으므로 디스크 자체가 무엇을 했는지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>이 볼륨은 파일을 메모리에 보관합니다. 디스크는 측정하지 않았습니다.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>디스크에 있는 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>이 볼륨은 다른 볼륨에 있는 파일입니다.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>그 볼륨 자체를 측정하려면 그 볼륨에 있는 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>이 디스크는 가상 머신의 디스크이며, 호스트가 캐시할 수 있습니다.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>파일 시스템이 압축을 합니다. 테스트 데이터는 압축되지 않으므로 다른 파일이 더 빠를 수 있습니다.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>파일 시스템이 데이터를 두 번 쓰며, 먼저 저널에 씁니다.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>이 폴더는 데스크톱의 포털을 통해 접근했으며, 측정값에는 이 프로그램의 처리도 포함됩니다.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>샌드박스가 폴더 자체를 사용하도록 허용한 다음 다시 선택하십시오.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>무효</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>주의</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>참고</translation>
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
        <translation>요약(한 줄 설명)</translation>
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
        <translation>이메일(선택 사항, 답장을 원하는 경우)</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>%1 %2 · %3 · %4 정보가 첨부됩니다.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — 비교</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>음영: 각 테스트의 마지막 3분의 1이며, 그 중앙값이 지속 속도입니다. 삼각형: 최고 및 최저 속도.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>측정</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
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
        <source>Parameters</source>
        <translation>매개변수</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1(무효)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>설명</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — 측정 %n개</numerusform>
        </translation>
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
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>디스크의 측정값이 아님: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>디스크의 측정값이 아님: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>%1 임의 읽기</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>%1 임의 쓰기</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>파일 작업</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>읽기/쓰기</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>여유</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>크기</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>캐시</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>우회</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>캐시 사용</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>용량 검사를 실행 중입니다</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>벤치마크를 실행 중입니다</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>쓰기 %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>읽기 %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>벤치마크 실패</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>벤치마크 완료</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>용량 검사 실패</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>용량 검사 완료</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>임의 읽기</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>임의 쓰기</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>파일 작업</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>매개변수</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>최고 %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>최저 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, 최고</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, 최저</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, 지연 시간</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>이 측정값에 대하여</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>%1 서버</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>네트워크 서버</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>외장 드라이브</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>네트워크 볼륨</translation>
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
        <translation>이 수치를 텍스트 파일로 저장</translation>
    </message>
</context>
<context>
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  (주의)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>인터페이스</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>상태</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Ondel Tarnwick S.M.A.R.T. 보고서</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  최적</translation>
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
        <extracomment>Button: opens a menu</extracomment>
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
    <name>SharedImageText</name>
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
        <extracomment>Adjective: the run has come to its end</extracomment>
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
        <translation>도움이 되셨다면 후원으로 개발이 이어지도록 도와주십시오.</translation>
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
    <name>TargetFactsText</name>
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
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 외장</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 내장</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 이동식</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 네트워크</translation>
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
        <translation>최대 파일 이름 길이</translation>
    </message>
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1자</numerusform>
        </translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>최대 경로 길이</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>여유</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>알 수 없음: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>S.M.A.R.T. 수치 없음: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>테스트할 볼륨에 있는 폴더를 선택하십시오(임시 작업 폴더가 그곳에 기록된 후 제거됩니다).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>선택</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>이미 열려 있는 창이 응답하지 않습니다. 가능해지는 대로 요청한 작업을 수행합니다.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>이미 열려 있는 창(프로세스 %1)이 응답하지 않습니다. 가능해지는 대로 요청한 작업을 수행합니다.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>데스크톱 설정에 따름</translation>
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
        <translation>언어</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>창의 언어</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>다음에 Tarnwick을 시작할 때 창에 적용됩니다.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>공유하는 이미지는 영어로</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>끄면 이미지의 글자가 창의 언어로 표시됩니다.</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: %4 동안 %2~%3 %6, 마지막 %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>아직 측정 데이터가 없습니다.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>복원</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>측정 %n개를 삭제했습니다</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>측정을 삭제했습니다</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
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
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>내장</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>외장</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>이동식</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>루트</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>디스크 채우기</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>지속 속도: 테스트 마지막 3분의 1 구간의 속도 중앙값으로, 긴 복사가 안정되는 속도입니다. 최고와 최저는 가장 빠른 0.1초와 가장 느린 0.1초의 속도입니다.</translation>
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
        <translation>빈 파일을 만들고, 정보를 조회하고, 이름을 바꾸고, 삭제합니다. 측정값은 초당 만든 파일의 수입니다.</translation>
    </message>
</context>
</TS>
