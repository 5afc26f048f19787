<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>赞助 %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>致谢</translation>
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
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>当前不可用</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>当前不可用</translation>
    </message>
</context>
<context>
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>空间不足：需要 %1，仅有 %2 可用。</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>I/O 错误：%1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>无法写入该位置。此卷可能为只读，或文件夹不允许写入。</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>测试文件小于随机块大小。</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>顺序写入</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>顺序读取</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>随机读取</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>随机写入</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>文件操作</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>文件/秒</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>最大 %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>测试期间，文件夹被删除，或其所在的卷被拔出。</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>此卷已被拔出，或其服务器已断开。</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>驱动器报告了错误，或在测试期间被拔出。</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>此卷只能读取：系统在其上发现错误时会切换为只读。</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>测试期间此卷已满，或您的配额已用完。</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>文件系统或当前会话的限制不允许这么大的文件。</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>测试期间文件夹的权限发生了变化，或系统禁止在该处执行此操作。</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>内存不足，无法使用这么大的块。</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>当前打开的文件过多；请关闭一些程序后重试。</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
        <translation>峰值 %1
最低 %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>峰值 %1 · 最低 %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>无法连接服务器。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The answer&apos;s head is too long</source>
        <translation>应答的标头过长</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>没有可用的代理</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>无法加载 libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>此沙盒没有网络，无法发送报告。</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
        <translation>服务器拒绝了此报告（%1）。</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>卷功能</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>卷的容量是否如其所称，写入的数据能否保留？</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>检查范围</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>再次读取</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>快速：仅抽样</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>开始检查</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>保存报告…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>将报告复制为文本</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>新建检查</translation>
    </message>
</context>
<context>
    <name>CapacityKey</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>CapacityLive</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1：%2%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>CapacityPane</name>
    <message>
        <source>Capacity of %1</source>
        <translation>%1 的容量</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>卷的容量</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>返回测试记录</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>检查范围分布图</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>检查范围内各处的速率，最高 %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>读取</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>任何检查都无法判断：您的文件所占的空间是否完好、驱动器还留有多少备用空间，以及修复过的块能否持久。</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>此文件系统不写入就无法预留空间，因此样本无法分散。结果不能说明卷的容量：请运行非快速检查。</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>快速检查只写入少数位置：其间的部分未经检查。</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>快速检查只写入少数位置，几秒内即可发现大多数虚假容量；但未发现问题并不能证明没有问题。</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>检查的范围小于计划：此卷过早写满，可能已丢失文件系统自身的数据。</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>检查的范围小于计划：空间可能已被其他程序占用。</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>此卷将文件保存在内存中：未检查任何磁盘。</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>读取的数据中只有 %1% 来自磁盘。请检查比本机内存更大的范围。</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>无法识别此卷背后的磁盘，读回的数据可能来自缓存。</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>超出实际容量写入的数据会丢失，或破坏其他位置的内容。请将所需数据从中复制出来，不要再信任它。</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>检查已停止：尚未读回的部分情况未知。</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>此文件系统不会返回与校验和不符的内容：在其上无法读到已改变的数据。</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>%1 的容量</translation>
    </message>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>写入此卷的数据仅能保留前 %1。</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>此卷标称 %1，但仅能保留前 %2。</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>此卷标称 %1，但仅能保留大约前 %2。</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>%1 处有 1 个块读回时已改变。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%2 处有 %1 个块读回时已改变。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 个块读回时已改变，首个位于 %2 处。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%2 中有 %1 读回时已改变，首个块位于 %3 处。</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>%1 处有 1 个块起初正确，之后发生改变。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%2 处有 %1 个块起初正确，之后发生改变。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 个块起初正确，之后发生改变，首个位于 %2 处。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%2 中有 %1 起初正确，之后发生改变，首个块位于 %3 处。</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>%1 处有 1 个块无法读取。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>%2 处有 %1 个块无法读取。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>%1 个块无法读取，首个位于 %2 处。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>%2 中有 %1 无法读取，首个块位于 %3 处。</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>%1 处有 1 个块无法写入。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>%2 处有 %1 个块无法写入。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>%1 个块无法写入，首个位于 %2 处。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>除已写入的 %2 外，另有 %1 无法写入，首个块位于 %3 处。</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>%1 处有 1 个块重试后才能写入或读取。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%2 处有 %1 个块重试后才能写入或读取。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 个块重试后才能写入或读取，首个位于 %2 处。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%2 中有 %1 重试后才能写入或读取，首个块位于 %3 处。</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>%1 处有 1 个块读回的内容与写入时不一致。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%2 处有 %1 个块读回的内容与写入时不一致。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 个块读回的内容与写入时不一致，首个位于 %2 处。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%2 中有 %1 读回的内容与写入时不一致，首个块位于 %3 处。</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>检查停止之前，已发现读回内容与写入时不一致的块，首个位于 %1 处。</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>此卷在 %2 中只写入了 %1，之后的写入全部被拒绝。</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>检查在读回任何数据之前已停止。</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>检查停止时，%2 中已有 %1 读回且与写入时一致。</translation>
    </message>
    <message>
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>此文件系统无法分散样本：仅检查了同一位置的 %1，其中保留了写入的内容。</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>遍布 %1 的样本均保留了写入的内容，但这不足以证明容量属实。</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>遍布 %1 可用空间的样本均保留了写入的内容，但这不足以证明容量属实。</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>写入 %2 中的 %1 后，您在此卷上的配额已用完；这部分均保留了写入的内容。</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>写入 %2 中的 %1 后，此卷已满；这部分均保留了写入的内容。</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>全部 %1 读回均与写入时一致，但大多来自内存，因此难以说明磁盘的情况。</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>全部 %1 均保留了写入的内容。</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>全部 %1 可用空间均保留了写入的内容。</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>标称容量</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>实际容量</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>约 %1</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>检查范围</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 可用空间</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>样本</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1 个，每 %2 一个</translation>
    </message>
    <message>
        <source>In one place</source>
        <translation>集中于一处</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>首次读取时正确。</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>%1 处（%2）：1 个位发生翻转。</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>%1 处（%2）：%3 个位发生翻转。</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>原因不明</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>%1 处（%2）：无法读取（%3）。</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>%1 处（%2）：无法写入（%3）。</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>%1 处（%2）：重试后才能写入或读取（%3）。</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>%1 处（%2）：读回的是写入其他位置的内容。</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>%1 处（%2）：读回的是写入 %3 处的块，且反复如此。</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>%1 处（%2）：读回的是写入 %3 处的内容。</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>%1 处（%2）：读回的全是零。</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>%1 处（%2）：读回了从未写入此处的内容。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>卷</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>已写入</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>已读回</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>%1 后再次读取</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>与写入一致</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已改变</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>重试后成功</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>从磁盘读取</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>另有 1 处。</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>另有 %1 处。</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>正在准备…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>正在写入样本</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>正在写入</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>正在读回</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>正在等待</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>正在再次读取</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>未写入</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>无法写入</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>读取</translation>
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
        <translation>用法：tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
打开磁盘速度与卷分析工具，选中第一个文件夹，并显示记录文件 (*.tarnwickrun)。
  --check-capacity  转到该文件夹所在卷的检查
  --choose-folder   询问要使用的文件夹
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 不是可以打开的文件夹或记录文件。</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>与此卷的上次记录比较</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>写入速率随时间变化</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>读取速率随时间变化</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>参照</translation>
    </message>
    <message>
        <source>%1, %2: %3 %4</source>
        <extracomment>%1 is what was measured, %2 the name of a run, %3 the figure, %4 its unit</extracomment>
        <translation>%1，%2：%3 %4</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>测试记录比较</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>已比较 %n 次基准测试</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>扫码试用</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>非磁盘数值</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>比较 %n 条记录</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>分享比较图片</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>差异参照</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>读取</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>随机读取</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>随机写入</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>文件操作</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>次/秒</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>可用 %1</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>填满磁盘测试</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>%1 测试</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>读/写 %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>写 %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>读 %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>随机 %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>绕过缓存</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>使用缓存</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>已完成</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>附上诊断信息</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>本次会话的近期活动。文件名、服务器和账户在写入之前均会替换为匿名标记。</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>查看…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
    <message>
        <source>Working folder:</source>
        <translation>工作文件夹：</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>临时，写入所选位置，用后删除</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>打开</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick 测试记录</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>“%1”已损坏，或不是 Tarnwick 测试记录。</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>“%1”不是可以打开的文件夹或记录文件。</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>“%1”及另外 %2 个文件已损坏，或不是 Tarnwick 测试记录。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>“%1”及另外 %2 个项目不是可以打开的文件夹或记录文件。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>隐藏测试与设置</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>显示测试与设置</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>重命名此报告。该名称也会显示在您分享的图片上。</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>报告标题</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>分享报告图片</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>删除记录</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>收起</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>非磁盘数值</translation>
    </message>
</context>
<context>
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>测试记录：%1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>非磁盘数值</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>要填满磁盘吗？</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>测试将持续写入，直到只剩 %1 可用空间，然后全部删除。在大容量驱动器上这需要很长时间，并且在测试结束前，其他需要使用该空间的程序都会空间不足。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>填满磁盘</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>在文件夹中显示：%1</translation>
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
        <translation>以往检查</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>即将失效</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>已验证</translation>
    </message>
    <message>
        <source>S.M.A.R.T.</source>
        <translation>S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>%1 is the verdict (Failing, Verified), %2 a sentence without its full stop</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>HealthText</name>
    <message>
        <source>Critical warning</source>
        <translation>严重警告</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>已用寿命</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>可用备用空间</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>备用空间阈值</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>通电时间</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>通电次数</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>磁头加载次数</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>不安全关机次数</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>写入数据量</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>读取数据量</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>主机读取命令数</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>主机写入命令数</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>控制器忙碌时间</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>已重新分配的扇区</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>待处理的扇区</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>无法校正的扇区</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>报告的无法校正错误</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>主轴起旋重试次数</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>接口 CRC 错误</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>介质错误</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>错误日志条目数</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>状态</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>备用空间低于阈值</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>可靠性下降</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>备份机制失效</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 年</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>%2 个磁盘中有 %1 个应答</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>此路径没有对应的设备</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>%1 没有对应的磁盘</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 不是块设备</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 不报告是否处于休眠，因此未打扰它</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 处于休眠，未打扰它</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 没有 S.M.A.R.T.，或已将其关闭</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 没有 S.M.A.R.T. 接口</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 不转发 S.M.A.R.T. 命令</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 不提供其 NVMe 健康日志</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>只有管理员才能查询 %1</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>此进程无法访问 %1</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 没有应答</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 未就 %1 作出应答</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 没有应答</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 不读取 NVMe 驱动器的健康状况（2.10 版可以）</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 没有 %1 的健康数值</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 没有 %1 的健康判定</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 未找到 %1 对应的驱动器</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>%1 的 ATA S.M.A.R.T.，仅给出判定而无数值</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>%1 的 ATA S.M.A.R.T.</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>%1 的 NVMe 健康日志</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2（%1），%2 min 前读取</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2（%1）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Two sentences: how many disks answered, and why others did not</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>Two sentences, the first on one disk and the second on another</extracomment>
        <translation>%1；%2</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>Two sentences: why a disk gives no figures itself, and why the system&apos;s service gives none</extracomment>
        <translation>%1，并且 %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>即将失效</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>已验证</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation>历史记录(&amp;S)</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>复制为文本</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>复制为 Markdown 表格</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>保存记录…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>导出 CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>读取</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>删除此记录</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>正在停止，正在删除文件</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>无法将检查结果输出为 JSON。</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>保留大小写</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>稀疏文件</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>硬链接</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>符号链接</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>扩展属性</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>命名流</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>访问控制列表</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>克隆</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>日志已启用</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>已密封</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>未知</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>已加密</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>挂载点</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>块大小</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>最佳传输大小</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>最长名称</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>最长路径</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>最多链接数</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>连接方式</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>（注意）</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>卷</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康状况</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>无 S.M.A.R.T. 数值：%1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>无法启动随窗口程序提供的 %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 没有应答</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 是文件夹</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 不是普通文件</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 已存在且不含测试记录；--force 可将其替换</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>此测试记录中有一个数值超出了文件所能保存的范围。</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>无法写入历史记录。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>无法写入结果</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 不是文件夹</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 不在此沙盒中，沙盒只包含本机的部分文件夹</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 属于沙盒本身；本机的同名文件夹对沙盒不可见。</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>此文件夹中另一次测试的文件正在使用，未将其删除。</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1：刷写到介质失败（%2）；写入的数据可能未全部到达介质。</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>准备：刷写到介质失败（%1）；写入的数据可能未全部到达介质。</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>无法将记录文件写入您的临时文件夹。</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>无法将此测试记录添加到历史记录。</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 超出了记录文件的大小上限（%2）</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>标准输入超出了记录文件的大小上限（%1）</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>标准输入不是记录文件：%1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 不是记录文件：%2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>无法绘制图片：%1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>无法绘制图片，或无法将其写入您的临时文件夹。</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>使用深色绘制</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>记录文件是 &quot;run --handoff&quot; 为单次测试写入的文件。图片为 PNG
文件，宽 1616
像素，边缘透明；其路径会输出到终端。无需显示器。同名图片会替换之前的图片；图片会保留到会话结束，或系统清空其临时文件夹为止。</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>退出状态：0 完成，1 无法读取文件或无法生成图片，2 用法错误。</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>绘制用于分享的测试记录图片，或多条记录的比较图片</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>要写入并读回多少数据（默认：全部可用空间）</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>无论如何都要保留的可用空间（默认：64MiB）</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>在整个范围内抽样，只需几秒：可发现虚假容量，但未发现问题并不能证明没有问题</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>S 秒后再次读取全部内容</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>输出一个 JSON 对象：判定、结论语句以及发现的全部内容</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>在 FOLDER 内的隐藏文件夹中写入每个块都不相同的文件，绕过系统缓存读回，全部比较后删除，按 Ctrl+C
中止时也会删除。不会触及您的文件；但在容量虚假的设备上，超出实际容量的每次写入都可能破坏该处的内容，正常使用该设备时也是如此。--quick 只写入样本。检查被强行终止时遗留的文件，会由下一次在
FOLDER 中进行的测试或检查删除。</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES 为纯数字，或带 K、M、G、T 的数字（KiB、MiB、GiB、TiB：以 1024 为进制）。</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>退出状态：0 未发现问题，1 失败，2 用法错误，3 发现缺陷，130
被信号中止；此前已发现的内容仍会输出。</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>检查卷的容量是否如其所称，以及能否保留写入的数据</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>格式为 text（默认）、markdown、csv 或 json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>允许 --output 替换任意内容的文件</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>将信息输出为一个 JSON 对象</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>将列表输出为一个 JSON 数组</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>不会向任何位置写入数据。系统未提供的信息显示为 &quot;--&quot; 或“未知”，并且不会出现在 JSON
对象中。</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>每个文件系统只列出一次，取其最短的挂载点。系统及其软件包和容器为自身挂载的内容不会列出。未及时应答的服务器没有容量数据。</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>仅查看驱动器：不会唤醒休眠的驱动器，也不会开启其中的任何功能。健康状况的来源，或没有该数据的原因，可用
&quot;facts&quot; 查看。</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>显示 FOLDER 所在的卷、文件系统、驱动器及其健康状况</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>列出已挂载的卷</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>输出 FOLDER 所在驱动器的健康状况</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>终端中的 Ondel Tarnwick：在磁盘上写入数据以测量其速度，测完即删除。</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>显示此帮助；用在命令之后则显示该命令的选项</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>&quot;export&quot; 写入的文件</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>允许 &quot;delete&quot; 删除全部测试记录</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION 为下列之一</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>每条测试记录一行，最新的在前，以记录名称开头（默认）</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>与 &quot;show&quot; 相同，按 --format 的格式输出测试记录</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>将测试记录写入 --output 指定的 FILE，格式由 --format 或 FILE 的名称决定：.csv、.json、.md、.txt，单条记录还可为 .tarnwickrun</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>永久删除测试记录，不再询问</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>RUN 以列表中的名称指定，或以其 id 开头的至少四个字符指定。不指定则表示全部测试记录；此时 &quot;delete&quot;
需要 --all。已打开的窗口会在您返回时随之更新。--output 仅替换空文件或含有测试记录的文件；加上
--force 则可替换任何其他文件。</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>退出状态：0 完成，1 没有此测试记录或操作失败，2 用法错误。</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>列出、显示、导出或删除窗口保存的测试记录</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES 为纯数字，或带 K、M、G、T 的数字（KiB、MiB、GiB、TiB：以 1024 为进制）。块大小会向上取整为
4096 字节的整数页。默认值与窗口相同，因此两者的数值可以比较；但顺序测试的块除外：窗口采用
&quot;facts&quot; 显示的“最佳传输大小”。</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>所有数据都写入 FOLDER 内的隐藏文件夹，结束时删除，按 Ctrl+C 中止时也会删除。此前被强行终止的测试遗留在
FOLDER 中的文件会在开始前删除；仍在使用的文件在等待一秒后保留不动。</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>--handoff 和 --card 的文件会保留到会话结束，或系统清空其临时文件夹为止。--output 仅替换空文件或含有测试记录的文件（记录文件，或
&quot;show --format&quot; 和 &quot;history export&quot; 以 json 或 csv 写入的文件）；加上
--force 则可替换任何其他文件。已打开的窗口会在您返回时显示 --keep
添加的测试记录。如有内容无法写入，数值仍会输出，但该次测试视为失败。</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>退出状态：0 完成，1 失败，2 用法错误，130 被信号中止。</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>测量 FOLDER 所在的文件系统</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>要运行的测试，始终按以下顺序：sequentialWrite、sequentialRead、randomRead、randomWrite、fileOps（默认：全部）</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>数据文件的大小，或 fill 以填满磁盘（默认：5GiB）</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>--size fill 保留的可用空间（默认：1GiB）</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>顺序写入时每次调用的字节数（默认：1MiB）</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>顺序读取时每次调用的字节数（默认：1MiB）</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>每次随机操作的字节数（默认：4KiB）</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>每项随机测试的操作数（默认：10000）</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>文件操作测试的文件数（默认：1000）</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>允许系统缓存数据文件，与普通程序相同</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>两次采样之间的最少秒数（默认：0.02）</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>输出一个 JSON 对象：计划、全部数值、全部采样、日期、文件夹、卷、文件系统、驱动器、内核，以及
&quot;evidence&quot; 和 &quot;remarks&quot; 下的观察结果及其含义</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>将记录文件写入该位置，供窗口、&quot;show&quot; 和他人使用</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>将此测试记录添加到窗口的历史记录</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>写入供窗口和 &quot;show&quot; 使用的记录文件，并在最后一行输出其路径；使用
--json 时：为对象中的 &quot;handoffFile&quot;</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>以浅色或深色绘制用于分享的测试记录图片，并在最后一行输出其路径；使用
--json 时：为 &quot;cardFile&quot;</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>记录文件是 &quot;run --handoff&quot; 和 &quot;run --output&quot; 为单次测试写入的文件。窗口的历史记录 (history.json) 和
&quot;show --format json&quot; 的输出则包含多条。&quot;-&quot; 表示标准输入。</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>以文本显示时，用条形比较多条测试记录的数值：每类中最大的数值占满整条，没有数值处显示
&quot;--&quot;。行宽适应终端，或为 80 列。Markdown 表格适用于论坛。CSV 每条记录一行，数值为纯数字，适用于电子表格和脚本。JSON
是记录文件内容的列表。</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>无法显示的文件会在标准错误中占一行，其余文件照常显示。</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>退出状态：0 全部显示，1 未全部显示，2 用法错误。</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>从记录文件显示测试记录，多条记录并排显示</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>历史记录中没有测试记录 %1</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 对应多条测试记录</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>测试记录</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
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
        <translation>正在开始</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>正在停止，正在删除测试文件</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>正在准备测试文件，%1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>正在开始，%1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>持续</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>峰值</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>总体</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作数</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速率</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>最大</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>创建</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>缺少要绘制的 RUNFILE</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 最多为一年</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>没有选项 %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 不接受值</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 需要一个值：%2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 只能与 %2 一起使用</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 需要 %2 到 %3 之间的整数，而不是 %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 需要字节数，例如 4096、64K 或 5GiB，范围为 %2 到 %3，而不是 %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 需要秒数（0 或更大），而不是 %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>缺少 FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>一次只能指定一个 FOLDER</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 只能是 text、markdown、csv 或 json，不能是 %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 需要文件名</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 不接受操作数</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 需要 %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>一个记录文件只能保存一条测试记录，而不是 %1 条</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>FILE 的名称不以 .tarnwickrun、.csv、.json、.md 或 .txt 结尾时，需要 %1</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 需要 RUN 或 %2 之一</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 只能与 %2 和 %3 一起使用</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 只支持 list、show、export 和 delete，不支持 %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>缺少命令；请参阅 %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>没有命令 %1；请参阅 %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>缺少要测量的 FOLDER</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>缺少要检查的 FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>一次只能指定一个 FOLDER，不能再加上 %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>FOLDER 的名称为空</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1：没有测试 %2，只有 %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 只能是 light 或 dark，不能是 %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>缺少要显示的 FILE</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>可以开始基准测试</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>请先选择一个卷</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>在左侧调整测试与设置，然后点击“运行基准测试”。</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>请从工具栏选择已挂载的卷或文件夹。</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>全部可用空间</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
        <translation>否</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>%1 后</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>在所选范围内各处写入样本，读回后删除。只需几秒，可发现大多数虚假容量；但未发现问题并不能证明没有问题。</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>将写入 %1，读回比较后删除。不会触及您的文件。</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>将写满全部可用空间，读回比较后删除。不会触及您的文件。</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>将写满全部可用空间（约 %1），读回比较后删除。在大容量卷上需要数小时，期间此卷对其他程序而言是满的。不会触及您的文件。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>检查已完成 %1%</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>1 个区段</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>%1 个区段</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1 至 %2：%3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
        <translation>检查时间</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>已复制文本</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>无法复制文本。</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>无法保存文件：%1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>已保存为“%1”</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <extracomment>%1 is the name of a test, %2 how much of it is done</extracomment>
        <translation>%1：%2%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <extracomment>%1 is a rate, %2 its unit, %3 how much is done of how much</extracomment>
        <translation>%1 %2，%3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>驱动器 %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>已完成</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>进行中</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>待进行</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 what it does (done, running, to come), %3 its rate</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2，%3</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>剩余几秒钟</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>本项测试剩余几秒钟</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>剩余约 %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>本项测试剩余约 %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>剩余约 %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>本项测试剩余约 %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>剩余约 %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>本项测试剩余约 %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 / %2 次操作</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>正在准备…</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>整次测试</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
        <translation>卷</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>菜单栏</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>选择要比较的记录</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>以往记录</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>比较</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>清空</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>比较 %n 条</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>本次测试</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>要删除所有已保存的测试记录吗？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>全部删除</translation>
    </message>
</context>
<context>
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>测试期间，写入的数据中最多有 %1 到达了磁盘。</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>测试期间，写入的数据中有 %1 到达了磁盘。</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>读取的数据中最多有 %1 来自磁盘。</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>读取的数据中有 %1 来自磁盘。</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>写入的数据未能全部刷写到磁盘：%1。</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>测试文件未能刷写到磁盘：%1。</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>前 %2 的速率为 %1，之后为 %3。</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>驱动器在 %2 后达到 %1（上限 %3），此后速率降低了 %4。</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>有 1 次超过 1 s 的停顿：%1。</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>有 %1 次超过 1 s 的停顿，最长 %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>测试期间，其他程序在同一磁盘上传输了 %1。</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>驱动器的 %1 链路以 %2 运行；驱动器可达 %3。</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>分区起点位于 %2 物理块内的 %1 处。</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>此卷仅有 %1 可用。</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>测试的 %1 数据可能全部落入 %2 的缓存中。</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>本机使用电池供电。</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>处理器设置为节能模式。</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>本机使用电池供电，且处理器设置为节能模式。</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>此文件系统将更改写入新位置，并对数据计算校验和。</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>此文件系统将更改写入新位置。</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>请开启“绕过缓存”。如已开启，请选择大于本机内存的大小。</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>在将数据托付给此驱动器之前，请查看其 S.M.A.R.T. 状态和系统日志。</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>尽管已要求系统绕过缓存，数据仍经过了缓存。</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>请选择大于本机内存的大小，或通过其他文件系统测试底层磁盘。</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>一次传输的数据超过该量时，只能达到较低的速率。</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>请改善驱动器的通风或加装散热片，待其冷却后重新测试。</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>请重新测试。如果停顿再次出现，请查看驱动器的 S.M.A.R.T. 状态及其线缆。</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>请在没有其他程序使用此磁盘时重新测试。</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>请尝试其他端口、插槽或线缆。</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>请重新创建分区，使其起点为 1 MiB 的整数倍。这会清除其中的数据。</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>请释放一些空间：许多驱动器和文件系统在将满时会变慢。</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>请选择更大的大小，并开启“绕过缓存”。</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>请接通电源并关闭节能模式后重新测试。</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>无法识别此卷背后的磁盘，因此无从得知磁盘自身的表现。</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>此卷将文件保存在内存中；未测量任何磁盘。</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>请选择磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>此卷是另一个卷上的文件。</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>要测量那个卷本身，请选择其上的文件夹。</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>此磁盘是虚拟机的磁盘，其主机可能会对其进行缓存。</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>此文件系统会压缩数据。测试数据无法压缩，因此其他文件可能更快。</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>此文件系统将数据写入两次，先写入日志。</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>此文件夹是通过桌面的门户访问的，数值中包含了这个程序的影响。</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>请允许沙盒直接使用此文件夹，然后重新选择它。</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>无效</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>注意</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>磁盘速度与卷分析工具</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>扫码测试您的磁盘</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>报告类型</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>功能建议</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>摘要（一句话描述）</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>您希望 %1 增加什么功能？</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>发生了什么？请说明重现步骤以及您预期的结果。</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>电子邮件（可选，如果您希望收到回复）</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>将附上 %1 %2 · %3 · %4。</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — 比较</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>谢谢</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>报告问题</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>您的报告已提交。感谢您帮助改进 %1。</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>在网页上报告：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>运行基准测试</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>吞吐量随时间变化</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>读取</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>阴影：每项测试的最后三分之一，其中位数即为持续速率。三角：峰值与最低速率。</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>测试记录</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>卷</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1（无效）</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>说明</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n 条测试记录</numerusform>
        </translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>已复制文本</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>已复制表格</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>无法复制文本。</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>测试记录列表</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick 测试记录</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>CSV 表格</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>无法保存文件：%1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>已保存为“%1”</translation>
    </message>
</context>
<context>
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>非磁盘数值：%1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>非磁盘数值：%1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>%1 随机读取</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>%1 随机写入</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>文件操作</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>读取/写入</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>读取</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
        <translation>随机</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>可用</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>缓存</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>已绕过</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>使用缓存</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>已复制数值</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>无法复制数值。</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1，非磁盘数值</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>顺序写入</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>顺序读取</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>重命名报告…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>分享报告图片…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>复制数值</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>复制为文本</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>复制为 Markdown 表格</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>保存记录文件…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>导出 CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>与此卷的上次记录比较</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>删除记录</translation>
    </message>
</context>
<context>
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>正在进行容量检查</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>正在进行基准测试</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>写入 %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>读取 %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>基准测试失败</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>基准测试已完成</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>容量检查失败</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>容量检查已完成</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>关于这些数值</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>这些说明的含义</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>读取</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>随机读取</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>随机写入</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>文件操作</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>卷</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>峰值 %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>最低 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1，峰值</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1，最低</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1，延迟</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>关于这些数值</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>%1 服务器</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>网络服务器</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>外置驱动器</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>网络卷</translation>
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
        <translation>导出…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>将这些数值保存为文本文件</translation>
    </message>
</context>
<context>
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1：</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  （注意）</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>状态</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Ondel Tarnwick S.M.A.R.T. 报告</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>写入块</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>读取块</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>随机块</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>绕过缓存</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  最佳</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <extracomment>Button: opens a menu</extracomment>
        <translation>分享</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>复制图片</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>通过电子邮件发送…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>复制为文本</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>复制为 Markdown 表格</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>保存记录文件…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>保存记录…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>导出 CSV…</translation>
    </message>
</context>
<context>
    <name>SharedImageText</name>
    <message>
        <source>Image copied</source>
        <translation>已复制图片</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>无法复制图片。</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>无法保存图片：%1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>已保存为“%1”</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>无法打开文件夹。</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>无法打开任何邮件程序。</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>测试与设置</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>测试项目</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>正在运行…</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 是免费的。</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>如果它对您有用，您的赞助有助于它持续发展。</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>在 Ko-fi 上赞助</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>一周内不再显示</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>我已赞助过 %1</translation>
    </message>
</context>
<context>
    <name>TargetFactsText</name>
    <message>
        <source>Sparse files</source>
        <translation>稀疏文件</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>克隆</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>硬链接</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>符号链接</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>扩展属性</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>大小写区分未知</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>不区分大小写</translation>
    </message>
    <message>
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 外置</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 内置</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 可移动</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 网络</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>无法打开文件夹。</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>最佳 I/O 大小</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>块大小</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>最长文件名</translation>
    </message>
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>最长路径</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>可用</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>未知：%1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>无 S.M.A.R.T. 数值：%1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>请在要测试的卷上选择一个文件夹（会在其中写入临时工作文件夹，用后删除）。</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>选择</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>已打开的窗口没有应答；它会尽快执行所请求的操作。</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>已打开的窗口（进程 %1）没有应答；它会尽快执行所请求的操作。</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>读取</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>写入</translation>
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
        <translation>关于 Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>打开记录文件…</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>运行基准测试</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>检查容量…</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Menu entry: begins to choose runs</extracomment>
        <translation>比较</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>撤销删除</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Tarnwick 帮助</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>报告问题…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>赞助 Tarnwick…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation>跟随桌面</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>大约每天查找一次新版本，安装前会先询问。关闭后，仅在您选择“检查更新”时才检查。</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>此构建不会自动更新。开发构建不含更新源，因此无法用正式版本替换自身。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>窗口语言</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>下次启动 Tarnwick 时，窗口将使用新设置。</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>分享图片使用英文</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>关闭后，图片中的文字使用窗口的语言。</translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>赞助 Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick 是免费的，由一位开发者制作。赞助用于支付托管费用和持续维护所需的时间。</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>在 Ko-fi 上赞助…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>我已赞助过 Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>隐藏侧边栏底部的赞助提示。</translation>
    </message>
</context>
<context>
    <name>TestRow</name>
    <message>
        <source>%1. %2</source>
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>ThroughputChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>吞吐量随时间变化</translation>
    </message>
</context>
<context>
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1：%4 内为 %2 至 %3 %6，最近 %5 %6。</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>尚无测量数据。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>已删除 %n 条记录</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>已删除记录</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
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
        <translation>要自动检查更新吗？</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>%1 有新版本可用</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>正在下载更新…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>正在验证更新的签名…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>更新已可安装</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>无法获取更新</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 可以大约每天查找一次新版本。它不会发送任何有关您或您的磁盘的信息，并且在下载任何内容之前都会询问。</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 是最新版本。</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>您当前使用 %1。%2 的下载大小为 %3。</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2 已由其制作者签名。接下来由系统的软件安装程序继续。</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>自动检查</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>不检查</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>无法连接更新服务器。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>无法读取更新服务器的应答。</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>此构建的更新服务器未使用安全连接，因此未向其发出任何请求。</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>%1 有新版本，但更新服务器未提供安全下载所需的信息。</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>无法下载更新。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>下载的文件大小与更新应有的大小不符，已将其丢弃。</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>下载的文件没有 %1 制作者的签名，已将其丢弃。</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>临时文件夹中没有足够的空间存放更新。</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>无法将更新写入临时文件夹。</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>系统中没有可打开此更新软件包的程序。</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>卷</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>选择卷</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>未选择卷</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>已挂载的卷</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>检查容量…</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>内置</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>外置</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>可移动</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>网络</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>卷</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>根目录</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>填满磁盘</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>持续速率：测试最后三分之一的速率中位数，即长时间复制最终稳定的速率；峰值和最低分别是最快和最慢的十分之一秒内的速率。</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>让数据绕过系统内存，使测得的是磁盘而不是缓存。</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>从头到尾写入一个大文件并刷写到磁盘，如同向此卷长时间复制。</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>从头到尾读取一个大文件，如同从此卷长时间复制。</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>读取文件中分散位置的块，每次一个，与大多数程序相同：若同时进行多个，测得的将是驱动器的队列，而不是需要等待多久；IOPS 即每秒完成的此类操作数。</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>写入文件中分散位置的块，每次一个，与大多数程序相同：若同时进行多个，测得的将是驱动器的队列，而不是需要等待多久；IOPS 即每秒完成的此类操作数。</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>创建、查询、重命名并删除空文件；数值为每秒创建的文件数。</translation>
    </message>
</context>
</TS>
