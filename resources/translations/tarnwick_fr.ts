<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>%1 % – %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Check</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityKey</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityLive</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityPane</name>
    <message>
        <source>Capacity of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report title</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormerCheck</name>
    <message>
        <source>%1 · %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormerChecks</name>
    <message>
        <source>Former checks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S.M.A.R.T.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in one part</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LiveRun</name>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A few seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunExports</name>
    <message>
        <source>%1 runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File operations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SMARTHeader</name>
    <message>
        <source>S.M.A.R.T.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SMARTList</name>
    <message>
        <source>Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TargetFacts</name>
    <message>
        <source>Case not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Block size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickCommands</name>
    <message>
        <source>&amp;Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Ondel Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TestRow</name>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ThroughputChart</name>
    <message>
        <source>Throughput over time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
