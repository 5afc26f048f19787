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
    <name>AppDelegateText</name>
    <message>
        <source>%1 % – %2</source>
        <extracomment>The title of the window during a run: how much is done, and the program&apos;s name</extracomment>
        <translation>%1&#xa0;% – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <extracomment>Button: opens a menu</extracomment>
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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Nicht genug Speicherplatz: Benötigt werden %1, frei sind nur %2.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>E/A-Fehler: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Dort konnte nicht geschrieben werden. Möglicherweise ist der Datenträger nur lesbar, oder der Ordner lässt es nicht zu.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>Die Testdatei ist zu klein für die Größe des Zufallsblocks.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Sequenzielles Schreiben</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Sequenzielles Lesen</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Zufälliges Lesen</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Zufälliges Schreiben</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Dateioperationen</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>Dateien/s</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>höchste %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Der Ordner wurde während der Messung entfernt oder sein Datenträger abgezogen.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Der Datenträger wurde abgezogen, oder sein Server ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>Das Laufwerk hat einen Fehler gemeldet oder wurde während der Messung abgezogen.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>Der Datenträger lässt sich nur noch lesen: Systeme schalten darauf um, wenn sie einen Fehler auf ihm finden.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>Der Datenträger ist während der Messung voll geworden, oder Ihr Kontingent darauf ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>Das Dateisystem oder eine Grenze dieser Sitzung lässt Dateien dieser Größe nicht zu.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>Die Zugriffsrechte des Ordners haben sich während der Messung geändert, oder das System verbietet dies dort.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>Für Blöcke dieser Größe ist nicht genug Arbeitsspeicher vorhanden.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Zurzeit sind zu viele Dateien geöffnet; schließen Sie einige Programme und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>Der Kopf der Antwort ist zu lang</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Kein Proxy ist verwendbar</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>libcurl.so.4 lässt sich nicht laden</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Aus dieser Sandbox ohne Netzwerk kann die Meldung nicht gesendet werden.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <translation>Bericht speichern&#xa0;…</translation>
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
        <translation>%1: %2&#xa0;%</translation>
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
        <source>Capacity of the volume</source>
        <translation>Kapazität des Datenträgers</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lesen</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Was keine Prüfung sagen kann: ob der Speicher unter Ihren Dateien in Ordnung ist, was das Laufwerk in Reserve hält und ob ein reparierter Block hält.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Dieses Dateisystem reserviert keinen Speicher, ohne ihn zu beschreiben; die Stichproben konnten daher nicht verteilt werden. Das Ergebnis sagt nichts über die Größe des Datenträgers: Führen Sie eine Prüfung durch, die sich nicht auf Stichproben beschränkt.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Eine schnelle Prüfung beschreibt nur wenige Stellen: Was dazwischen liegt, wurde nicht untersucht.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Eine schnelle Prüfung beschreibt nur wenige Stellen. Sie findet die meisten falschen Kapazitäten in Sekunden; findet sie nichts, beweist das nichts.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>Es wurde weniger geprüft als geplant: Der Datenträger war zu früh voll. Möglicherweise hat er Daten des Dateisystems selbst verloren.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Es wurde weniger geprüft als geplant: Andere Programme haben womöglich den Speicher belegt.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Dieser Datenträger hält seine Dateien im Arbeitsspeicher: Es wurde kein Laufwerk geprüft.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Nur %1&#xa0;% des Gelesenen kamen vom Laufwerk. Prüfen Sie mehr, als der Arbeitsspeicher des Rechners fasst.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Das Laufwerk hinter diesem Datenträger ist nicht sichtbar; was zurückkam, kann daher aus einem Cache stammen.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>Was über seine tatsächliche Größe hinaus geschrieben wird, geht verloren oder zerstört, was an anderer Stelle auf ihm liegt. Kopieren Sie, was Sie von ihm benötigen, und vertrauen Sie ihm nicht.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Die Prüfung wurde gestoppt: Über das, was noch nicht zurückgelesen war, ist nichts bekannt.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Dieses Dateisystem gibt nichts heraus, was nicht zu seinen Prüfsummen passt: Veränderte Daten lassen sich auf ihm nicht lesen.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Kapazität von %1</translation>
    </message>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Dieses Dateisystem kann Stichproben nicht verteilen: Nur %1 an einer Stelle wurden geprüft, und sie enthalten, was geschrieben wurde.</translation>
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
        <translation>Ihr Kontingent auf dem Datenträger war nach %1 von %2 aufgebraucht; diese enthalten, was geschrieben wurde.</translation>
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
        <source>about %1</source>
        <translation>etwa %1</translation>
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
        <source>In one place</source>
        <translation>An einer Stelle</translation>
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
        <translation>Nach %1 erneut gelesen</translation>
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
        <translation>Konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Erst im zweiten Versuch</translation>
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
        <source>Preparing…</source>
        <translation>Vorbereitung&#xa0;…</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lesen</translation>
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
        <translation>Aufruf: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Öffnet die Laufwerkstempo- und Datenträgeranalyse, wählt den ersten Ordner und zeigt Messdateien (*.tarnwickrun).
  --check-capacity  weiter zur Prüfung des Datenträgers dieses Ordners
  --choose-folder   nach einem Ordner fragen
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 ist kein Ordner und keine Messdatei, die sich öffnen lässt.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Schreiben im Zeitverlauf</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Lesen im Zeitverlauf</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>Referenz</translation>
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
        <translation>Messungen im Vergleich</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>%n Messung verglichen</numerusform>
            <numerusform>%n Messungen verglichen</numerusform>
        </translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>%n Messung im Vergleich</numerusform>
            <numerusform>%n Messungen im Vergleich</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Vergleichsbild teilen</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Unterschiede zu</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Zufälliges Lesen</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Zufälliges Schreiben</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Dateiop.</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>Op./s</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Fülltest</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>Test mit %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>L/S %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>S %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>L %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>Zuf. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Ohne Cache</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>Mit Cache</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
        <translation>Ansehen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick-Messungen</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>„%1“ ist beschädigt oder keine Messung von Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>„%1“ ist kein Ordner und keine Messdatei, die sich öffnen lässt.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>„%1“ und %2 weitere Datei sind beschädigt oder keine Messungen von Tarnwick.</numerusform>
            <numerusform>„%1“ und %2 weitere Dateien sind beschädigt oder keine Messungen von Tarnwick.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>„%1“ und %2 weiteres Element sind keine Ordner und keine Messdateien, die sich öffnen lassen.</numerusform>
            <numerusform>„%1“ und %2 weitere Elemente sind keine Ordner und keine Messdateien, die sich öffnen lassen.</numerusform>
        </translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Messung: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>nicht vom Laufwerk</translation>
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
    <name>Format</name>
    <message>
        <source>%1 %</source>
        <extracomment>A percentage: %1 is the number</extracomment>
        <translation>%1&#xa0;%</translation>
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
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Ausfall droht</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>In Ordnung</translation>
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
        <translation>Kritische Warnung</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Verbrauchte Lebensdauer</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Verfügbare Reserve</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Schwellenwert der Reserve</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Betriebszeit</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Einschaltvorgänge</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Kopf-Parkzyklen</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Unsichere Abschaltungen</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Geschriebene Daten</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Gelesene Daten</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Lesebefehle des Hosts</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Schreibbefehle des Hosts</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Controller-Aktivzeit</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Neu zugewiesene Sektoren</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Ausstehende Sektoren</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Nicht korrigierbare Sektoren</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Gemeldete nicht korrigierbare Fehler</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Wiederholte Anlaufversuche</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>CRC-Fehler der Schnittstelle</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Medienfehler</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Einträge im Fehlerprotokoll</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Laufwerke</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Reserve unter Schwellenwert</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Zuverlässigkeit beeinträchtigt</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Nur lesbar</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Sicherung des flüchtigen Speichers ausgefallen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 Jahre</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>Antwort von %1 der %2 Laufwerke</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>hinter diesem Pfad steht kein Gerät</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>hinter %1 steht kein Laufwerk</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 ist kein blockorientiertes Gerät</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 teilt nicht mit, ob es schläft, und wurde daher nicht abgefragt</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 schläft und wurde nicht abgefragt</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 hat kein S.M.A.R.T., oder es ist ausgeschaltet</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 hat keine S.M.A.R.T.-Schnittstelle</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 gibt S.M.A.R.T.-Befehle nicht weiter</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 gibt sein NVMe-Zustandsprotokoll nicht heraus</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 darf nur von einem Administrator abgefragt werden</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 ist für diesen Prozess nicht erreichbar</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 antwortet nicht</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 antwortet nicht für %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 liest den Zustand von NVMe-Laufwerken nicht (erst ab Version 2.10)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 hat keine Zustandswerte von %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 hat kein Urteil über den Zustand von %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 kennt kein Laufwerk hinter %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>ATA-S.M.A.R.T. von %1, das sein Urteil ohne Werte abgab</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>ATA-S.M.A.R.T. von %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>NVMe-Zustandsprotokoll von %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 für %1, vor %2 min gelesen</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 für %1</translation>
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
        <translation>%1, und %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 Tag</numerusform>
            <numerusform>%1 Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Ausfall droht</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>In Ordnung</translation>
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
        <translation>Messungen speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren&#xa0;…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lesen</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Diese Messung löschen</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Wird gestoppt, Dateien werden entfernt</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>Die Prüfung ließ sich nicht als JSON ausgeben.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>Groß/klein relevant</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Groß/klein erhalten</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Sparse-Dateien</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Hardlinks</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Symbolische Links</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Erweiterte Attribute</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Benannte Datenströme</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Zugriffssteuerungslisten</translation>
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
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Journal aktiv</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Versiegelt</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Nur lesbar</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Verschlüsselt</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Eingehängt in</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Blockgröße</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Optimale Übertragung</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Längster Name</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Längster Pfad</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Meiste Links</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Angeschlossen über</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(Achtung)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>keine S.M.A.R.T.-Werte: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>%1, das mit dem Fenster geliefert wird, konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 ist ein Ordner</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 existiert und enthält keine Messungen; --force würde die Datei ersetzen</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Ein Messwert dieser Messung liegt jenseits dessen, was eine Datei aufnehmen kann.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>Der Verlauf konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Das Ergebnis konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 ist in dieser Sandbox nicht vorhanden; sie enthält nur einige Ordner des Rechners</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 gehört der Sandbox selbst; der gleichnamige Ordner des Rechners ist vor ihr verborgen.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>Dateien einer anderen Messung in diesem Ordner sind in Benutzung und wurden nicht entfernt.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: Das Leeren der Puffer auf das Laufwerk schlug fehl (%2); möglicherweise ist nicht alles Geschriebene dort angekommen.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Vorbereitung: Das Leeren der Puffer auf das Laufwerk schlug fehl (%1); möglicherweise ist nicht alles Geschriebene dort angekommen.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Die Messdatei konnte nicht in Ihren temporären Ordner geschrieben werden.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>Die Messung konnte dem Verlauf nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 ist größer, als eine Messdatei sein kann (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>%1 konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>die Standardeingabe ist größer, als eine Messdatei sein kann (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>die Standardeingabe ist keine Messdatei: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 ist keine Messdatei: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>Das Bild konnte nicht gezeichnet werden: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>Das Bild konnte nicht gezeichnet oder nicht in Ihren temporären Ordner geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>In dunklen Farben zeichnen</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Eine Messdatei ist, was „run --handoff“ für eine Messung schreibt. Das Bild ist eine PNG-Datei, 1616 Pixel
breit, mit durchsichtigem Rand; sein Pfad wird ausgegeben. Eine Anzeige ist nicht nötig. Ein Bild mit demselben
Titel ersetzt das vorige; es bleibt, bis Ihre Sitzung endet oder das System seinen temporären Ordner leert.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Rückgabewert: 0 erledigt, 1 eine Datei konnte nicht gelesen oder das Bild nicht erstellt werden, 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Bild einer Messung zum Teilen zeichnen, oder mehrerer im Vergleich</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Wie viel geschrieben und zurückgelesen wird (Vorgabe: gesamter freier Speicher)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Wie viel in jedem Fall frei bleibt (Vorgabe: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Stichproben im ganzen Bereich, in wenigen Sekunden: findet eine falsche
Kapazität und beweist nichts, wenn keine gefunden wird</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Alles S Sekunden später noch einmal lesen</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Ein JSON-Objekt ausgeben: das Urteil, den Satz und alles, was gefunden wurde</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Schreibt Dateien, die sich in jedem Block unterscheiden, in einen verborgenen Ordner in FOLDER, liest sie am Cache des Systems vorbei
zurück, vergleicht alles und entfernt sie, auch nach Strg+C. Keine Ihrer Dateien wird angerührt; doch auf einem Gerät mit falscher
Kapazität kann jedes Schreiben über die tatsächliche Größe hinaus zerstören, was dort liegt, wie jede andere Benutzung auch. --quick
schreibt nur Stichproben. Dateien einer gewaltsam beendeten Prüfung entfernt die nächste Messung oder Prüfung in FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES sind reine Ziffern oder Ziffern mit K, M, G, T (KiB, MiB, GiB, TiB: in Schritten von 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Rückgabewert: 0 keine Mängel gefunden, 1 fehlgeschlagen, 2 falscher Aufruf, 3 Mängel
gefunden, 130 durch ein Signal gestoppt; was bis dahin gefunden wurde, wird ausgegeben.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Prüfen, ob ein Datenträger so groß ist, wie er angibt, und behält, was auf ihn geschrieben wird</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>Als text (Vorgabe), markdown, csv oder json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Mit --output auch eine Datei beliebigen Inhalts ersetzen</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Die Angaben als ein JSON-Objekt ausgeben</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Die Liste als ein JSON-Array ausgeben</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Es wird nirgends etwas geschrieben. Was das System nicht mitteilt,
steht als „--“ oder „nicht bekannt“ da und fehlt im JSON-Objekt.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Jedes Dateisystem wird einmal aufgeführt, mit seinem kürzesten Einhängepunkt. Was das System, seine Pakete und seine
Container für sich selbst einhängen, wird ausgelassen. Ein Server, der nicht rechtzeitig antwortet, hat keine Kapazität.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>Das Laufwerk wird nur betrachtet: Ein schlafendes wird nicht geweckt, und nichts wird in ihm
eingeschaltet. Woher die Angaben zum Zustand kommen oder warum es keine gibt, sagt „facts“.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Anzeigen, wo FOLDER liegt: Datenträger, Dateisystem, Laufwerk und dessen Zustand</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Die eingehängten Datenträger auflisten</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Den Zustand des Laufwerks ausgeben, auf dem FOLDER liegt</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Diesen Text anzeigen</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick in einem Terminal: wie schnell ein Laufwerk ist, auf ihm gemessen, ohne Spuren zu hinterlassen.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Diesen Text anzeigen, oder hinter einem Befehl dessen Optionen</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Die Version anzeigen</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>Die Datei, die „export“ schreibt</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Mit „delete“ alle Messungen löschen</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION ist eine der folgenden</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>pro Messung eine Zeile, die mit deren Namen beginnt, die neueste zuerst (Vorgabe)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>Messungen ausgeben wie „show“, im Format von --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>Messungen in die FILE von --output schreiben, im Format von --format oder dem
des Namens von FILE: .csv, .json, .md, .txt, oder .tarnwickrun für eine Messung</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>Messungen löschen, ohne Rückfrage und endgültig</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>Ein RUN wird so benannt wie in der Liste, oder mit vier oder mehr Zeichen, mit denen seine Kennung beginnt. Ohne RUN sind
alle Messungen gemeint; „delete“ verlangt dann --all. Ein geöffnetes Fenster wird aktualisiert, sobald Sie zu ihm zurückkehren.
--output ersetzt eine vorhandene Datei nur, wenn sie leer ist oder Messungen enthält; mit --force auch jede andere.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Rückgabewert: 0 erledigt, 1 eine solche Messung gibt es nicht oder es schlug fehl, 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Die im Fenster gespeicherten Messungen auflisten, anzeigen, exportieren oder löschen</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES sind reine Ziffern oder Ziffern mit K, M, G, T (KiB, MiB, GiB, TiB: in Schritten von 1024). Blöcke werden auf
ganze Seiten von 4096 aufgerundet. Die Vorgaben sind die des Fensters, damit dessen Messwerte und diese vergleichbar
sind, außer bei den Blöcken der sequenziellen Tests: Das Fenster nimmt die „Optimale Übertragung“, die „facts“ anzeigt.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Alles wird in einen verborgenen Ordner in FOLDER geschrieben und am Ende entfernt, auch nach Strg+C. Was eine gewaltsam beendete Messung
in FOLDER hinterließ, wird vor dem Start entfernt; Dateien, die noch in Benutzung sind, bleiben nach einer Sekunde Wartezeit liegen.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>Die Dateien von --handoff und --card bleiben, bis Ihre Sitzung endet oder das System seinen temporären Ordner
leert. --output ersetzt eine vorhandene Datei nur, wenn sie leer ist oder Messungen enthält (eine Messdatei
oder was „show --format“ und „history export“ als json oder csv schreiben); mit --force auch jede andere. Ein
geöffnetes Fenster zeigt eine mit --keep hinzugefügte Messung, sobald Sie zu ihm zurückkehren. Kann etwas
nicht geschrieben werden, werden die Messwerte trotzdem ausgegeben, und die Messung gilt als fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Rückgabewert: 0 erledigt, 1 fehlgeschlagen, 2 falscher Aufruf, 130 durch ein Signal gestoppt.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Das Dateisystem messen, auf dem FOLDER liegt</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Auszuführende Tests, stets in dieser Reihenfolge: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (Vorgabe: alle)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Größe der Datendatei, oder fill, um das Laufwerk zu füllen (Vorgabe: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>Was --size fill frei lässt (Vorgabe: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Bytes pro Aufruf, sequenzielles Schreiben (Vorgabe: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Bytes pro Aufruf, sequenzielles Lesen (Vorgabe: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Bytes pro zufällige Operation (Vorgabe: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Operationen in jedem Zufallstest (Vorgabe: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Dateien im Test der Dateioperationen (Vorgabe: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Das System die Datendatei im Cache halten lassen, wie bei gewöhnlichen Programmen</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Mindestabstand zweier Messpunkte in Sekunden (Vorgabe: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Ein JSON-Objekt ausgeben: den Plan, jeden Messwert, jeden Messpunkt,
Datum, Ordner, Datenträger, Dateisystem, Laufwerk, Kernel und unter
„evidence“ und „remarks“, was beobachtet wurde und was es besagt</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Dort eine Messdatei schreiben, für das Fenster, für „show“ und für andere</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Die Messung dem Verlauf des Fensters hinzufügen</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Eine Messdatei für das Fenster und für „show“ schreiben und ihren Pfad
als letzte Zeile ausgeben; mit --json: als „handoffFile“ im Objekt</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Ein Bild der Messung zum Teilen zeichnen, in hellen (light) oder dunklen (dark)
Farben, und seinen Pfad als letzte Zeile ausgeben; mit --json: als „cardFile“</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Eine Messdatei ist, was „run --handoff“ und „run --output“ für eine Messung schreiben. Der Verlauf des
Fensters (history.json) und die Ausgabe von „show --format json“ haben mehrere. „-“ ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>Als Text vergleichen Balken die Messwerte mehrerer Messungen: Der größte jeder Art füllt die ganze Breite, und „--“ steht, wo eine
Messung keinen hat. Die Zeilen passen ins Terminal oder in 80 Spalten. Eine Markdown-Tabelle ist für Foren. CSV hat eine Zeile
pro Messung, mit einfachen Zahlen für Tabellenkalkulationen und Skripte. JSON ist eine Liste der Inhalte von Messdateien.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Eine Datei, die nicht angezeigt werden kann, erhält eine Zeile auf der Standardfehlerausgabe; die anderen werden angezeigt.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Rückgabewert: 0 alle wurden angezeigt, 1 nicht alle, 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Messungen aus ihren Messdateien anzeigen, mehrere nebeneinander</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>im Verlauf gibt es keine Messung %1</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 steht für mehrere Messungen</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Wird gestoppt, Testdateien werden entfernt</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Testdatei wird vorbereitet, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Start, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Dauerrate</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Spitze</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operationen</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Höchste</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>RUNFILE zum Zeichnen fehlt</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 darf höchstens ein Jahr sein</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>es gibt keine Option %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert an</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 benötigt einen Wert: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 geht nur mit %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 benötigt eine ganze Zahl von %2 bis %3, nicht %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 benötigt eine Anzahl von Bytes, etwa 4096, 64K oder 5GiB, von %2 bis %3, nicht %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 benötigt eine Anzahl von Sekunden, 0 oder mehr, nicht %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>FOLDER fehlt</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>nur ein FOLDER auf einmal</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 ist text, markdown, csv oder json, nicht %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 benötigt den Namen einer Datei</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 nimmt keinen Operanden an</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 benötigt %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>eine Messdatei enthält eine Messung, nicht %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>%1 ist nötig, wenn der Name von FILE nicht auf .tarnwickrun, .csv, .json, .md oder .txt endet</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 benötigt entweder RUN oder %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 geht nur mit %2 und %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 kennt list, show, export und delete, nicht %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>ein Befehl fehlt; siehe %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>es gibt keinen Befehl %1; siehe %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>FOLDER zum Messen fehlt</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>FOLDER zum Prüfen fehlt</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>nur ein FOLDER auf einmal, nicht auch noch %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>der Name von FOLDER ist leer</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: es gibt keinen Test %2, nur %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 ist light oder dark, nicht %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>FILE zum Anzeigen fehlt</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Gesamter freier Speicher</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <translation>%1&#xa0;% der Prüfung</translation>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1 bis %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <extracomment>%1 is the name of a test, %2 how much of it is done</extracomment>
        <translation>%1: %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <extracomment>%1 is a rate, %2 its unit, %3 how much is done of how much</extracomment>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>Laufwerk %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>fertig</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>läuft</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>ausstehend</translation>
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
        <translation>Noch wenige Sekunden</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>Noch wenige Sekunden für diesen Test</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Noch etwa %n s</numerusform>
            <numerusform>Noch etwa %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>Noch etwa %n s für diesen Test</numerusform>
            <numerusform>Noch etwa %n s für diesen Test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Noch etwa %n min</numerusform>
            <numerusform>Noch etwa %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>Noch etwa %n min für diesen Test</numerusform>
            <numerusform>Noch etwa %n min für diesen Test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Noch etwa %n h</numerusform>
            <numerusform>Noch etwa %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>Noch etwa %n h für diesen Test</numerusform>
            <numerusform>Noch etwa %n h für diesen Test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 von %2 Operation</numerusform>
            <numerusform>%1 von %2 Operationen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Vorbereitung&#xa0;…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Leeren</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>%n vergleichen</numerusform>
            <numerusform>%n vergleichen</numerusform>
        </translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>Von dem, was geschrieben wurde, hat das Laufwerk während des Tests höchstens %1 erhalten.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>Von dem, was geschrieben wurde, hat das Laufwerk während des Tests %1 erhalten.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>Von dem, was gelesen wurde, hat das Laufwerk höchstens %1 geliefert.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>Von dem, was gelesen wurde, hat das Laufwerk %1 geliefert.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Nicht alles Geschriebene ließ sich aus den Puffern auf das Laufwerk bringen: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>Die Testdatei ließ sich nicht aus den Puffern auf das Laufwerk bringen: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 für die ersten %2, danach %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>Das Laufwerk erreichte nach %2 eine Temperatur von %1 (Grenze %3); von da an war die Rate um %4 niedriger.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Eine Pause von über 1 s: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 Pause von über 1 s, die längste %2.</numerusform>
            <numerusform>%1 Pausen von über 1 s, die längste %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>Andere Programme haben während des Tests %1 auf demselben Laufwerk übertragen.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>Die %1-Anbindung des Laufwerks läuft mit %2; das Laufwerk beherrscht %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>Die Partition beginnt %1 nach dem Anfang eines physischen Blocks von %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>Nur %1 des Datenträgers waren frei.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Die %1 des Tests passen möglicherweise in einen Cache von %2.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>Der Rechner lief im Akkubetrieb.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>Der Prozessor war auf Stromsparen eingestellt.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>Der Rechner lief im Akkubetrieb, sein Prozessor war auf Stromsparen eingestellt.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>Das Dateisystem schreibt Änderungen an neue Stellen und bildet Prüfsummen der Daten.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>Das Dateisystem schreibt Änderungen an neue Stellen.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Schalten Sie „Cache umgehen“ ein. Ist es bereits eingeschaltet, wählen Sie eine Größe, die den Arbeitsspeicher des Rechners übersteigt.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Sehen Sie sich den S.M.A.R.T.-Status des Laufwerks und das Systemprotokoll an, bevor Sie ihm Daten anvertrauen.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Daten gingen durch einen Cache, obwohl das System ihn umgehen sollte.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Wählen Sie eine Größe, die den Arbeitsspeicher des Rechners übersteigt, oder testen Sie das Laufwerk darunter über ein anderes Dateisystem.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Rechnen Sie mit der niedrigeren Rate, wenn mehr als das auf einmal übertragen wird.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Geben Sie dem Laufwerk mehr Luft oder einen Kühlkörper, und messen Sie erneut, sobald es abgekühlt ist.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Messen Sie erneut. Treten die Pausen wieder auf, sehen Sie sich den S.M.A.R.T.-Status des Laufwerks und sein Kabel an.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Messen Sie erneut, während nichts anderes das Laufwerk benutzt.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Versuchen Sie es mit einem anderen Anschluss, Steckplatz oder Kabel.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Legen Sie die Partition neu an, beginnend bei einem Vielfachen von 1 MiB. Das löscht sie.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Geben Sie Speicher frei: Viele Laufwerke und Dateisysteme werden langsamer, wenn sie voll sind.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Wählen Sie bei „Größe“ einen höheren Wert, und schalten Sie „Cache umgehen“ ein.</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Messen Sie erneut im Netzbetrieb und ohne Stromsparen.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>Das Laufwerk hinter diesem Datenträger ist nicht sichtbar; daher lässt sich nicht sagen, was es selbst geleistet hat.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Dieser Datenträger hält seine Dateien im Arbeitsspeicher; es wurde kein Laufwerk gemessen.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Wählen Sie einen Ordner auf einem Laufwerk.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Dieser Datenträger ist eine Datei auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Um jenen Datenträger selbst zu messen, wählen Sie einen Ordner auf ihm.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>Das Laufwerk gehört zu einer virtuellen Maschine, deren Host es möglicherweise im Cache hält.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>Das Dateisystem komprimiert. Die Daten des Tests lassen sich nicht komprimieren, andere Dateien können daher schneller sein.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>Das Dateisystem schreibt Daten zweimal, zuerst in sein Journal.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Dieser Ordner wurde über das Portal der Arbeitsumgebung erreicht, ein Programm, das in die Messwerte eingeht.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Erlauben Sie der Sandbox den Zugriff auf den Ordner selbst, und wählen Sie ihn erneut.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Ungültig</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Vorsicht</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Laufwerkstempo- und Datenträgeranalyse</translation>
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
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Beigefügt werden: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick – Vergleich</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Schattiert: das letzte Drittel jedes Tests, dessen Median die Dauerrate ist. Dreiecke: Spitze und Minimum der Rate.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
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
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (ungültig)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Anmerkungen</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick – %n Messung</numerusform>
            <numerusform>Ondel Tarnwick – %n Messungen</numerusform>
        </translation>
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
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Nicht vom Laufwerk: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Nicht vom Laufwerk: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Zufälliges Lesen %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Zufälliges Schreiben %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Dateioperationen</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Lesen/Schreiben</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>Umgangen</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>Mit Cache</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
        <translation>Bericht umbenennen&#xa0;…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Berichtsbild teilen&#xa0;…</translation>
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
        <translation>Messdatei speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren&#xa0;…</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Eine Kapazitätsprüfung läuft</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Eine Messung läuft</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>Schreiben %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>Lesen %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Messung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Messung abgeschlossen</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Kapazitätsprüfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Kapazitätsprüfung abgeschlossen</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Zufälliges Lesen</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Zufälliges Schreiben</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Dateiop.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>Spitze %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>min. %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, Spitze</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, Minimum</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, Latenz</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>Zu diesen Messwerten</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>%1-Server</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Netzwerkserver</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Externes Laufwerk</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Netzwerkdatenträger</translation>
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
        <translation>Exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Diese Werte als Textdatei speichern</translation>
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
        <translation>%1  (Achtung)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>S.M.A.R.T.-Bericht von Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  optimal</translation>
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
        <extracomment>Button: opens a menu</extracomment>
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
        <translation>Speichern unter&#xa0;…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Per E-Mail senden&#xa0;…</translation>
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
        <translation>Messdatei speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Messungen speichern&#xa0;…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren&#xa0;…</translation>
    </message>
</context>
<context>
    <name>SharedImageText</name>
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
        <translation>Prüfung läuft&#xa0;…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Messung läuft&#xa0;…</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>TargetFactsText</name>
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
        <translation>Groß/klein irrelevant</translation>
    </message>
    <message>
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 extern</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 intern</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 Wechselmedium</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 Netzwerk</translation>
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
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 Zeichen</numerusform>
            <numerusform>%1 Zeichen</numerusform>
        </translation>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Nicht bekannt: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Keine S.M.A.R.T.-Werte: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Wählen Sie einen Ordner auf dem Datenträger, der getestet werden soll (ein temporärer Arbeitsordner wird dort angelegt und wieder entfernt).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>das bereits geöffnete Fenster antwortet nicht; es führt den Auftrag aus, sobald es kann.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>das bereits geöffnete Fenster (Prozess %1) antwortet nicht; es führt den Auftrag aus, sobald es kann.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <translation>Nach Aktualisierungen suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
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
        <translation>Ordner wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Messdatei öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <translation>Kapazität prüfen&#xa0;…</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>Problem melden&#xa0;…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Tarnwick unterstützen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
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
        <translation>Diese Version aktualisiert sich nicht selbst. Entwicklerversionen werden ohne Aktualisierungsquelle erstellt und können sich daher nicht durch eine veröffentlichte Version ersetzen.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Sprache des Fensters</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>Gilt für das Fenster, wenn Tarnwick das nächste Mal gestartet wird.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Geteilte Bilder auf Englisch</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Ist dies ausgeschaltet, haben ihre Texte die Sprache des Fensters.</translation>
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
        <translation>Auf Ko-fi unterstützen&#xa0;…</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: %2 bis %3 %6 in %4, zuletzt %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Noch keine Messwerte.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>%n Messung gelöscht</numerusform>
            <numerusform>%n Messungen gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Messung gelöscht</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2&#xa0;%</translation>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatisch nach Aktualisierungen suchen?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Aktualisierungen&#xa0;…</translation>
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
        <translation>Aktualisierung wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Signatur der Aktualisierung wird geprüft&#xa0;…</translation>
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
        <translation>Der Aktualisierungsserver dieser Version wird nicht über eine sichere Verbindung erreicht, daher wurde nichts bei ihm angefragt.</translation>
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
        <translation>Ordner wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Kapazität prüfen&#xa0;…</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Intern</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Extern</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Wechselmedium</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Wurzelverzeichnis</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Freigegebener Ordner</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Laufwerk füllen</translation>
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
        <translation>Liest Blöcke an verstreuten Stellen der Datei, einen nach dem anderen, wie die meisten Programme: Mehrere zugleich zu lesen würde die Warteschlange des Laufwerks messen und nicht, wie lange man wartet; IOPS sind solche Operationen pro Sekunde.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Schreibt Blöcke an verstreuten Stellen der Datei, einen nach dem anderen, wie die meisten Programme: Mehrere zugleich zu schreiben würde die Warteschlange des Laufwerks messen und nicht, wie lange man wartet; IOPS sind solche Operationen pro Sekunde.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Legt leere Dateien an, fragt sie ab, benennt sie um und löscht sie; der Messwert gibt an, wie viele pro Sekunde angelegt wurden.</translation>
    </message>
</context>
</TS>
