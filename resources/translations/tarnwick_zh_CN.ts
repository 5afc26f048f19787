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
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
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
        <source>The server rejected the report (%1).</source>
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
        <source>Close</source>
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
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
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
        <translation>此卷标称 %1，但仅能保留约前 %2。</translation>
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
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>样本保留了写入的内容，但彼此相距太近。</translation>
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
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>任何检查都无法判断：您的文件所占的空间是否完好、驱动器还留有多少备用，以及修复过的块能否持久。</translation>
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
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>检查已停止：尚未读回的部分情况未知。</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>快速检查只写入少数位置，几秒内即可发现大多数虚假容量；但未发现问题并不能证明没有问题。</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>检查的范围小于计划：空间可能已被其他程序占用。</translation>
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
        <source>Capacity of %1</source>
        <translation>%1 的容量</translation>
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
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
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
        <translation>写入随时间变化</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>读取随时间变化</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>测试记录比较</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>已比较 %1 次基准测试</translation>
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
    <message>
        <source>Comparing %1 runs</source>
        <translation>正在比较 %1 条记录</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>分享比较图片</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>差异参照</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
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
        <translation>即将失效</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>已验证</translation>
    </message>
    <message>
        <source>S.M.A.R.T.</source>
        <translation>S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
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
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>删除此记录</translation>
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
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1：%2%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation>%1 %2，%3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>驱动器 %1 °C</translation>
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
        <source>the volume</source>
        <translation>此卷</translation>
    </message>
    <message>
        <source>Volume</source>
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
        <translation>比较</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>比较 %1 条</translation>
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
    <name>QFileDialog</name>
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
        <translation>打开</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick 测试记录</translation>
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
        <translation>摘要 — 一句话描述</translation>
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
        <translation>电子邮件 — 可选，如果您希望收到回复</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>将附上 %1 %2 · %3 · %4。</translation>
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
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>阴影：每项测试的最后三分之一，其中位数即为持续速率。三角：峰值与最低速率。</translation>
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
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>正在进行容量检查</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>正在进行基准测试</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>基准测试失败</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>写入 %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>读取 %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>基准测试已完成</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>容量检查已完成</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>容量检查失败</translation>
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
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
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
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Write</source>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Run</source>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation>全部可用空间</translation>
    </message>
    <message>
        <source>No</source>
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
        <translation>%1 至 %2：%3</translation>
    </message>
    <message>
        <source>Checked</source>
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
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>running</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>待进行</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2，%3</translation>
    </message>
    <message>
        <source>A few seconds</source>
        <translation>几秒钟</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>约 %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>约 %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>约 %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>本项测试剩余 %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 次操作</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>正在准备…</translation>
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
        <translation>%1 条测试记录</translation>
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
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>非磁盘数值：%1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>非磁盘数值：%1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>随机 %1 读取</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>随机 %1 写入</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>文件操作</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>读取/写入</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Random</source>
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
        <translation>可用</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>缓存</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>已绕过</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>已使用</translation>
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
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
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
    <name>TarnwickKit::views::TargetFacts</name>
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
    <message>
        <source>%1 chars</source>
        <translation>%1 个字符</translation>
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
        <translation>可用</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>未知：%1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、 </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>无 S.M.A.R.T. 数值：%1</translation>
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
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>已删除 %1 条记录</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>已删除记录</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
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
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
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
        <translation>%1 可以大约每天查找一次新版本。它不会发送任何有关您或您磁盘的信息，并且在下载任何内容之前都会询问。</translation>
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
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>持续速率：测试最后三分之一的速率中位数，即长时间复制最终稳定的速率；峰值和最低分别是最快和最慢的十分之一秒。</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>让数据绕开系统内存，使测得的是磁盘而不是缓存。</translation>
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
        <translation>读取文件中分散位置的块，每次一个，与大多数程序相同：同时多个测得的是驱动器的队列，而不是需要等待多久；IOPS 即每秒完成的此类操作数。</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>写入文件中分散位置的块，每次一个，与大多数程序相同：同时多个测得的是驱动器的队列，而不是需要等待多久；IOPS 即每秒完成的此类操作数。</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>创建、查找、重命名并删除空文件；数值为每秒创建的文件数。</translation>
    </message>
</context>
</TS>
