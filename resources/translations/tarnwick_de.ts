<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>%1 unterstützen</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Danksagungen</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>%1 % – %2</source>
        <translation>%1 % – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Zurzeit nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Zurzeit nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>Spitze %1
min. %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>Spitze %1 · min. %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Der Server ist nicht erreichbar. Prüfen Sie die Verbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>Der Server hat die Meldung abgelehnt (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Datenträgermerkmale</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>Ist der Datenträger so groß, wie er angibt, und behält er, was auf ihn geschrieben wird?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Zu prüfen</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Erneut lesen</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Schnell: nur Stichproben</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Prüfung starten</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Bericht speichern …</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Bericht als Text kopieren</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Neue Prüfung</translation>
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
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
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
        <translation>Kapazität von %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Zurück zu den Messungen</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Karte des geprüften Speichers</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Rate über den Speicher hinweg, bis %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Dieser Datenträger behält nur die ersten %1 dessen, was auf ihn geschrieben wird.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Dieser Datenträger gibt %1 an, behält aber nur die ersten %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Dieser Datenträger gibt %1 an, behält aber nur etwa die ersten %2.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Ein Block bei %1 kam verändert zurück.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 Block bei %2 kam verändert zurück.</numerusform>
            <numerusform>%1 Blöcke bei %2 kamen verändert zurück.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 Block kam verändert zurück, der erste bei %2.</numerusform>
            <numerusform>%1 Blöcke kamen verändert zurück, der erste bei %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 von %2 kamen verändert zurück, der erste Block bei %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Ein Block bei %1 war zuerst richtig und hat sich später verändert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 Block bei %2 war zuerst richtig und hat sich später verändert.</numerusform>
            <numerusform>%1 Blöcke bei %2 waren zuerst richtig und haben sich später verändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 Block war zuerst richtig und hat sich später verändert, der erste bei %2.</numerusform>
            <numerusform>%1 Blöcke waren zuerst richtig und haben sich später verändert, der erste bei %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 von %2 waren zuerst richtig und haben sich später verändert, der erste Block bei %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>Ein Block bei %1 konnte nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>%1 Block bei %2 konnte nicht gelesen werden.</numerusform>
            <numerusform>%1 Blöcke bei %2 konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>%1 Block konnte nicht gelesen werden, der erste bei %2.</numerusform>
            <numerusform>%1 Blöcke konnten nicht gelesen werden, der erste bei %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>%1 von %2 konnten nicht gelesen werden, der erste Block bei %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>Ein Block bei %1 konnte nicht geschrieben werden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>%1 Block bei %2 konnte nicht geschrieben werden.</numerusform>
            <numerusform>%1 Blöcke bei %2 konnten nicht geschrieben werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>%1 Block konnte nicht geschrieben werden, der erste bei %2.</numerusform>
            <numerusform>%1 Blöcke konnten nicht geschrieben werden, der erste bei %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Neben %2, die geschrieben wurden, konnten %1 nicht geschrieben werden, der erste Block bei %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Ein Block bei %1 ließ sich erst im zweiten Versuch schreiben oder lesen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%1 Block bei %2 ließ sich erst im zweiten Versuch schreiben oder lesen.</numerusform>
            <numerusform>%1 Blöcke bei %2 ließen sich erst im zweiten Versuch schreiben oder lesen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 Block ließ sich erst im zweiten Versuch schreiben oder lesen, der erste bei %2.</numerusform>
            <numerusform>%1 Blöcke ließen sich erst im zweiten Versuch schreiben oder lesen, der erste bei %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%1 von %2 ließen sich erst im zweiten Versuch schreiben oder lesen, der erste Block bei %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Ein Block bei %1 kam nicht so zurück, wie er geschrieben wurde.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%1 Block bei %2 kam nicht so zurück, wie er geschrieben wurde.</numerusform>
            <numerusform>%1 Blöcke bei %2 kamen nicht so zurück, wie sie geschrieben wurden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 Block kam nicht so zurück, wie er geschrieben wurde, der erste bei %2.</numerusform>
            <numerusform>%1 Blöcke kamen nicht so zurück, wie sie geschrieben wurden, der erste bei %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%1 von %2 kamen nicht so zurück, wie sie geschrieben wurden, der erste Block bei %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>Bevor sie gestoppt wurde, stieß die Prüfung auf Blöcke, die nicht so zurückkamen, wie sie geschrieben wurden, der erste bei %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>Der Datenträger ließ sich bis %1 von %2 beschreiben und wies alles Weitere ab.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>Die Prüfung wurde gestoppt, bevor etwas zurückgelesen war.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>Die Prüfung wurde gestoppt, als %1 von %2 unverändert zurückgekommen waren.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>Die Stichproben enthalten, was geschrieben wurde, liegen aber nah beieinander.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Stichproben aus den gesamten %1 enthalten, was geschrieben wurde; ein Beweis ist das nicht.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Stichproben aus den gesamten %1 freien Speichers enthalten, was geschrieben wurde; ein Beweis ist das nicht.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Ihr Anteil am Datenträger war nach %1 von %2 aufgebraucht; diese enthalten, was geschrieben wurde.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Der Datenträger war nach %1 von %2 voll; diese enthalten, was geschrieben wurde.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Alle %1 kamen unverändert zurück, aber größtenteils aus dem Arbeitsspeicher: Das sagt wenig über das Laufwerk.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Alle %1 enthalten, was geschrieben wurde.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Alle %1 freien Speichers enthalten, was geschrieben wurde.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Angegebene Größe</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Tatsächliche Größe</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Zu prüfen</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 freier Speicher</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Stichproben</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, je eine pro %2</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>Beim ersten Lesen war es richtig.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>Bei %1, %2: Ein Bit ist gekippt.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>Bei %1, %2: %3 Bit ist gekippt.</numerusform>
            <numerusform>Bei %1, %2: %3 Bits sind gekippt.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>kein Grund bekannt</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>Bei %1, %2: konnte nicht gelesen werden (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>Bei %1, %2: konnte nicht geschrieben werden (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>Bei %1, %2: ließ sich erst im zweiten Versuch schreiben oder lesen (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>Bei %1, %2: Es kam zurück, was an anderer Stelle geschrieben wurde.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>Bei %1, %2: Es kam immer wieder der Block zurück, der bei %3 geschrieben wurde.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>Bei %1, %2: Es kam zurück, was bei %3 geschrieben wurde.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>Bei %1, %2: Es kamen Nullen zurück.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>Bei %1, %2: Es kam etwas zurück, das nie dort geschrieben wurde.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Was keine Prüfung sagen kann: ob der Speicher unter Ihren Dateien in Ordnung ist, was das Laufwerk in Reserve hält und ob ein reparierter Block hält.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Dieser Datenträger hält seine Dateien im Arbeitsspeicher: Es wurde kein Laufwerk geprüft.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Nur %1 % des Gelesenen kamen vom Laufwerk. Prüfen Sie mehr, als der Arbeitsspeicher des Rechners fasst.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Das Laufwerk hinter diesem Datenträger ist nicht sichtbar; was zurückkam, kann daher aus einem Cache stammen.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Die Prüfung wurde gestoppt: Über das, was noch nicht zurückgelesen war, ist nichts bekannt.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Eine schnelle Prüfung beschreibt nur wenige Stellen. Sie findet die meisten falschen Kapazitäten in Sekunden; findet sie nichts, beweist das nichts.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Es wurde weniger geprüft als geplant: Andere Programme haben womöglich den Speicher belegt.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Zurückgelesen</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>Nach %1 erneut</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Verändert</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Nicht schreibbar</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Erst im 2. Versuch</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Vom Laufwerk gelesen</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>Und an einer weiteren Stelle.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>Und an %1 weiteren Stelle.</numerusform>
            <numerusform>Und an %1 weiteren Stellen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Kapazität von %1</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Vorbereitung …</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Stichproben schreiben</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Zurücklesen</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Erneut lesen</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Nicht beschrieben</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Unlesbar</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Nicht schreibbar</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Mit der letzten Messung dieses Datenträgers vergleichen</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>Schreiben im Zeitverlauf</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Lesen im Zeitverlauf</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Messungen im Vergleich</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>%1 Messungen verglichen</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Zum Ausprobieren scannen</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Nicht vom Laufwerk</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>%1 Messungen im Vergleich</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Vergleichsbild teilen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Unterschiede zu</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Diagnosedaten anhängen</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Letzte Vorgänge aus dieser Sitzung. Dateinamen, Server und Konten werden durch anonyme Platzhalter ersetzt, bevor etwas aufgezeichnet wird.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Ansehen …</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Tests und Einstellungen ausblenden</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Tests und Einstellungen einblenden</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Diesen Bericht umbenennen. Der Name erscheint auch auf Bildern, die Sie teilen.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Titel des Berichts</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Berichtsbild teilen</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Messung löschen</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Einklappen</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Nicht vom Laufwerk</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Laufwerk füllen?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Der Test schreibt, bis nur noch %1 frei sind, und entfernt danach alles wieder. Auf einem großen Laufwerk dauert das lange, und allem anderen, das dort Platz benötigt, fehlt er bis zum Ende des Tests.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Laufwerk füllen</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Im Ordner anzeigen: %1</translation>
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
        <translation>Frühere Prüfungen</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>Ausfall droht</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>In Ordnung</translation>
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
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Als Markdown-Tabelle kopieren</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Messungen speichern …</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren …</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Diese Messung löschen</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Bereit zur Messung</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Wählen Sie zuerst einen Datenträger</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Stellen Sie links Tests und Einstellungen ein und klicken Sie dann auf „Messung starten“.</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Wählen Sie in der Werkzeugleiste einen eingehängten Datenträger oder einen Ordner.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>Laufwerk %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Gesamte Messung</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>diesem Datenträger</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Datenträger</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Messungen zum Vergleichen auswählen</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Frühere Messungen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>%1 vergleichen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>aktuelle Messung</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Alle gespeicherten Messungen löschen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Alle löschen</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>Arbeitsordner:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>temporär, wird dort angelegt und wieder entfernt</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick-Messungen</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Laufwerkstempo und Datenträgeranalyse</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Scannen und selbst messen</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Art der Meldung</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Funktionswunsch</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Zusammenfassung – in einer Zeile</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>Was soll %1 können?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Was ist geschehen? Wie lässt es sich nachstellen, und was haben Sie erwartet?</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>E-Mail – freiwillig, falls Sie eine Antwort wünschen</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>Beigefügt werden: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Vielen Dank</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Problem melden</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Ihre Meldung ist eingegangen. Danke, dass Sie helfen, %1 zu verbessern.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Im Web melden:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Messung starten</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Durchsatz im Zeitverlauf</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Schattiert: das letzte Drittel jedes Tests, dessen Median die Dauerrate ist. Dreiecke: Spitze und Minimum der Rate.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Sequenzielles Schreiben</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Sequenzielles Lesen</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Bericht umbenennen …</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Berichtsbild teilen …</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Messwerte kopieren</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Als Markdown-Tabelle kopieren</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Messdatei speichern …</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren …</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Mit der letzten Messung dieses Datenträgers vergleichen</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Messung löschen</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Eine Kapazitätsprüfung läuft</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Eine Messung läuft</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Messung fehlgeschlagen</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>Schreiben %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>Lesen %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Messung abgeschlossen</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Kapazitätsprüfung abgeschlossen</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Kapazitätsprüfung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>Zu diesen Messwerten</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Was diese Anmerkungen bedeuten</translation>
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
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Diese Werte als Textdatei speichern</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Schreibblock</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Leseblock</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Zufallsblock</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>Cache umgehen</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Per E-Mail senden …</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Als Markdown-Tabelle kopieren</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Messdatei speichern …</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Messungen speichern …</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren …</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Tests und Einstellungen</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Prüfung läuft …</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Messung läuft …</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 ist kostenlos.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>Wenn es Ihnen nützt, hilft Ihre Unterstützung, es am Leben zu halten.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Auf Ko-fi unterstützen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Eine Woche lang ausblenden</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>Ich habe %1 schon unterstützt</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
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
        <translation>Über Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Messdatei öffnen …</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Messung</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Messung starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Kapazität prüfen …</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Löschen rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Hilfe zu Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Problem melden …</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Tarnwick unterstützen …</translation>
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
        <translation>Gesamter freier Speicher</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Nach %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Stichproben aus dem gesamten gewählten Bereich werden geschrieben, zurückgelesen und entfernt. Das dauert Sekunden, findet die meisten falschen Kapazitäten und beweist nichts, wenn es keine findet.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>%1 werden geschrieben, zurückgelesen, verglichen und entfernt. Ihre Dateien bleiben unberührt.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Der gesamte freie Speicher wird beschrieben, zurückgelesen, verglichen und freigegeben. Ihre Dateien bleiben unberührt.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Der gesamte freie Speicher, etwa %1, wird beschrieben, zurückgelesen, verglichen und freigegeben. Auf einem großen Datenträger dauert das Stunden; währenddessen ist er für andere Programme voll. Ihre Dateien bleiben unberührt.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1 % der Prüfung</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>in einem Teil</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>in %1 Teil</numerusform>
            <numerusform>in %1 Teilen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 bis %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Geprüft</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Text kopiert</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Der Text konnte nicht kopiert werden.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Die Datei konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Als „%1“ gespeichert</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>ausstehend</translation>
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
        <translation>wenige Sekunden</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>etwa %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>etwa %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>etwa %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Noch %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>Noch %1 für diesen Test</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 Operationen</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Vorbereitung …</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::RunExports</name>
    <message>
        <source>%1 runs</source>
        <translation>%1 Messungen</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Text kopiert</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Tabelle kopiert</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Der Text konnte nicht kopiert werden.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Listen von Messungen</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick-Messungen</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>CSV-Tabellen</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Die Datei konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Als „%1“ gespeichert</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Nicht vom Laufwerk: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Nicht vom Laufwerk: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Zufälliges Lesen %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Zufälliges Schreiben %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Dateioperationen</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Lesen/Schreiben</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>Umgangen</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>Genutzt</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Messwerte kopiert</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Die Messwerte konnten nicht kopiert werden.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, nicht vom Laufwerk</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>Bild kopiert</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Das Bild konnte nicht kopiert werden.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Das Bild konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Als „%1“ gespeichert</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Der Ordner konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Es konnte kein E-Mail-Programm geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>Sparse-Dateien</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Schnappschüsse</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Hardlinks</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Symlinks</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Groß/klein unbekannt</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>Groß/klein relevant</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Groß/klein egal</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Der Ordner konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Optimale E/A-Größe</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Blockgröße</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Max. Dateiname</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Max. Pfad</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Nicht bekannt: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Keine S.M.A.R.T.-Werte: %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Sucht etwa einmal am Tag nach einer neuen Version und fragt vor der Installation. Ist dies ausgeschaltet, sucht Tarnwick nur, wenn Sie „Nach Aktualisierungen suchen“ wählen.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Diese Ausgabe aktualisiert sich nicht selbst. Entwicklerversionen werden ohne Aktualisierungsquelle erstellt und können sich daher nicht durch eine veröffentlichte Version ersetzen.</translation>
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
        <translation>Tarnwick unterstützen</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick ist kostenlos und wird von einem einzigen Entwickler gemacht. Ihre Unterstützung deckt das Hosting und die Zeit für die Weiterentwicklung.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Auf Ko-fi unterstützen …</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Ich habe Tarnwick schon unterstützt</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Blendet den Hinweis unten in der Seitenleiste aus.</translation>
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
        <translation>Durchsatz im Zeitverlauf</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>%1 Messungen gelöscht</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Messung gelöscht</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Strg+Z</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatisch nach Aktualisierungen suchen?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Aktualisierungen …</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Sie sind auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Eine neue Version von %1 ist verfügbar</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Aktualisierung wird heruntergeladen …</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Signatur der Aktualisierung wird geprüft …</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>Die Aktualisierung ist bereit zur Installation</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Die Suche nach Aktualisierungen ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Die Aktualisierung konnte nicht bezogen werden</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 kann etwa einmal am Tag nach einer neuen Version suchen. Dabei wird nichts über Sie oder Ihre Laufwerke gesendet, und vor jedem Herunterladen wird gefragt.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 ist die neueste Version.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>Sie haben %1. Für %2 müssen %3 heruntergeladen werden.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2 ist vom Hersteller signiert. Ab hier übernimmt die Softwareinstallation Ihres Systems.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Automatisch suchen</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Aktualisierung installieren</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Nicht suchen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Der Aktualisierungsserver ist nicht erreichbar. Prüfen Sie die Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Die Antwort des Aktualisierungsservers konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>Der Aktualisierungsserver dieser Ausgabe wird nicht über eine sichere Verbindung erreicht, daher wurde nichts bei ihm angefragt.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Es gibt eine neue Version von %1, aber der Aktualisierungsserver nennt nicht, was zum sicheren Herunterladen nötig ist.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Die Aktualisierung konnte nicht heruntergeladen werden. Prüfen Sie die Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>Die heruntergeladene Datei hat nicht die Länge, die die Aktualisierung haben sollte, und wurde daher verworfen.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>Die heruntergeladene Datei ist nicht vom Hersteller von %1 signiert und wurde daher verworfen.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>Im temporären Ordner ist nicht genug Platz für die Aktualisierung.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Die Aktualisierung konnte nicht in den temporären Ordner geschrieben werden.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>Kein Programm auf diesem System öffnet das Paket der Aktualisierung.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Datenträger auswählen</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Kein Datenträger ausgewählt</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Eingehängte Datenträger</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Kapazität prüfen …</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Dauerrate: der Median der Rate im letzten Drittel des Tests, auf den sich langes Kopieren einpendelt; Spitze und Minimum sind die schnellste und die langsamste Zehntelsekunde.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Leitet Daten am Arbeitsspeicher des Systems vorbei, damit das Laufwerk gemessen wird und nicht der Cache.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Schreibt eine große Datei vom Anfang bis zum Ende und leert die Puffer auf das Laufwerk, wie es langes Kopieren auf diesen Datenträger tut.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Liest eine große Datei vom Anfang bis zum Ende, wie es langes Kopieren von diesem Datenträger tut.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Liest Blöcke an verstreuten Stellen der Datei, einen nach dem anderen, wie die meisten Programme: Mehrere zugleich würden die Warteschlange des Laufwerks messen und nicht, wie lange man wartet; IOPS sind solche Operationen pro Sekunde.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Schreibt Blöcke an verstreuten Stellen der Datei, einen nach dem anderen, wie die meisten Programme: Mehrere zugleich würden die Warteschlange des Laufwerks messen und nicht, wie lange man wartet; IOPS sind solche Operationen pro Sekunde.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Legt leere Dateien an, sucht sie, benennt sie um und löscht sie; der Messwert gibt an, wie viele pro Sekunde angelegt wurden.</translation>
    </message>
</context>
</TS>
