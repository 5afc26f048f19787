<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Sostieni %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Ringraziamenti</translation>
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
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Non disponibile al momento</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Non disponibile al momento</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>picco %1
min %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>picco %1 · min %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Impossibile raggiungere il server. Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>Il server ha rifiutato la segnalazione (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Funzionalità del volume</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>Il volume è grande quanto dichiara, e conserva ciò che gli viene affidato?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Spazio da controllare</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Seconda rilettura</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Rapido: solo campioni</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Avvia controllo</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Salva rapporto…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Copia il rapporto come testo</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Nuovo controllo</translation>
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
        <translation>Ferma</translation>
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
        <translation>Capacità di %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Torna alle misurazioni</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Mappa dello spazio controllato</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Velocità lungo lo spazio, fino a %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lettura</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Questo volume conserva solo i primi %1 di ciò che vi viene scritto.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Questo volume dichiara %1, ma conserva solo i primi %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Questo volume dichiara %1, ma conserva solo circa i primi %2.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Un blocco a %1 risulta alterato alla rilettura.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 blocco a %2 risulta alterato alla rilettura.</numerusform>
            <numerusform>%1 blocchi a %2 risultano alterati alla rilettura.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 blocco risulta alterato alla rilettura, il primo a %2.</numerusform>
            <numerusform>%1 blocchi risultano alterati alla rilettura, il primo a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 su %2 risultano alterati alla rilettura, il primo blocco a %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Un blocco a %1 era dapprima corretto, poi si è alterato.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 blocco a %2 era dapprima corretto, poi si è alterato.</numerusform>
            <numerusform>%1 blocchi a %2 erano dapprima corretti, poi si sono alterati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 blocco era dapprima corretto, poi si è alterato, il primo a %2.</numerusform>
            <numerusform>%1 blocchi erano dapprima corretti, poi si sono alterati, il primo a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 su %2 erano dapprima corretti, poi si sono alterati, il primo blocco a %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>Impossibile leggere un blocco a %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>Impossibile leggere %1 blocco a %2.</numerusform>
            <numerusform>Impossibile leggere %1 blocchi a %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>Impossibile leggere %1 blocco, il primo a %2.</numerusform>
            <numerusform>Impossibile leggere %1 blocchi, il primo a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>Impossibile leggere %1 su %2, il primo blocco a %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>Impossibile scrivere un blocco a %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>Impossibile scrivere %1 blocco a %2.</numerusform>
            <numerusform>Impossibile scrivere %1 blocchi a %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>Impossibile scrivere %1 blocco, il primo a %2.</numerusform>
            <numerusform>Impossibile scrivere %1 blocchi, il primo a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Oltre a %2 scritti, impossibile scriverne %1, il primo blocco a %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Un blocco a %1 è stato scritto o letto solo al secondo tentativo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%1 blocco a %2 è stato scritto o letto solo al secondo tentativo.</numerusform>
            <numerusform>%1 blocchi a %2 sono stati scritti o letti solo al secondo tentativo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 blocco è stato scritto o letto solo al secondo tentativo, il primo a %2.</numerusform>
            <numerusform>%1 blocchi sono stati scritti o letti solo al secondo tentativo, il primo a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%1 su %2 sono stati scritti o letti solo al secondo tentativo, il primo blocco a %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Un blocco a %1 non è stato restituito come era stato scritto.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%1 blocco a %2 non è stato restituito come era stato scritto.</numerusform>
            <numerusform>%1 blocchi a %2 non sono stati restituiti come erano stati scritti.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 blocco non è stato restituito come era stato scritto, il primo a %2.</numerusform>
            <numerusform>%1 blocchi non sono stati restituiti come erano stati scritti, il primo a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%1 su %2 non sono stati restituiti come erano stati scritti, il primo blocco a %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>Prima di essere fermato, il controllo ha incontrato blocchi non restituiti come erano stati scritti, il primo a %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>È stato possibile scrivere sul volume fino a %1 su %2; tutto il resto è stato rifiutato.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>Il controllo è stato fermato prima di rileggere qualcosa.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>Il controllo è stato fermato quando %1 su %2 erano stati restituiti intatti.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>I campioni contengono ciò che è stato scritto, ma sono vicini tra loro.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>I campioni distribuiti su %1 contengono ciò che è stato scritto, il che non è una prova.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>I campioni distribuiti su %1 di spazio libero contengono ciò che è stato scritto, il che non è una prova.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>La tua quota del volume si è esaurita dopo %1 su %2; questi contengono ciò che è stato scritto.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Il volume si è riempito dopo %1 su %2; questi contengono ciò che è stato scritto.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Tutti i %1 sono stati restituiti intatti, ma per lo più dalla memoria: questo dice poco sul disco.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Tutti i %1 contengono ciò che è stato scritto.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Tutti i %1 di spazio libero contengono ciò che è stato scritto.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Dimensione dichiarata</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Dimensione reale</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Spazio da controllare</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 di spazio libero</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, uno ogni %2</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>Alla prima lettura era corretto.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>A %1, %2: un bit era invertito.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>A %1, %2: %3 bit era invertito.</numerusform>
            <numerusform>A %1, %2: %3 bit erano invertiti.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>motivo sconosciuto</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>A %1, %2: impossibile leggere (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>A %1, %2: impossibile scrivere (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>A %1, %2: scritto o letto solo al secondo tentativo (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>A %1, %2: è stato restituito ciò che era stato scritto altrove.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>A %1, %2: è stato restituito, più e più volte, il blocco scritto a %3.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>A %1, %2: è stato restituito ciò che era stato scritto a %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>A %1, %2: sono stati restituiti zeri.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>A %1, %2: è stato restituito qualcosa che non vi è mai stato scritto.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Ciò che nessun controllo può dire: se lo spazio occupato dai tuoi file è sano, che cosa l’unità tiene di riserva e se un blocco riparato durerà.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Questo volume tiene i suoi file in memoria: nessun disco è stato controllato.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Solo il %1% di quanto letto proveniva dal disco. Controlla più di quanto la memoria del computer possa contenere.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Il disco dietro questo volume non è visibile, perciò quanto restituito può provenire da una cache.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Il controllo è stato fermato: di ciò che non aveva riletto non si sa nulla.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Un controllo rapido scrive solo in pochi punti. Trova la maggior parte delle capacità false in pochi secondi; non trovare nulla non prova nulla.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>È stato controllato meno del previsto: altri programmi potrebbero aver occupato lo spazio.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Scritto</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Riletto</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>Riletto dopo %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Intatto</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterato</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Non leggibile</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Non scrivibile</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Al secondo tentativo</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Letto dal disco</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>E in un altro punto.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>E in %1 altro punto.</numerusform>
            <numerusform>E in altri %1 punti.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Capacità di %1</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparazione…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Scrittura dei campioni</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Rilettura</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Attesa</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Seconda rilettura</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Non scritto</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Illeggibile</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Non scrivibile</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lettura</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Confronta con l’ultima misurazione di questo volume</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>Scrittura nel tempo</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Lettura nel tempo</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Confronto tra misurazioni</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>%1 misurazioni a confronto</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Scansiona per provarlo</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Non dal disco</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>Confronto di %1 misurazioni</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Condividi un’immagine del confronto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Differenze rispetto a</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation>Completata</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Allega diagnostica</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Attività recente di questa sessione. I nomi di file, server e account vengono sostituiti con segnaposto anonimi prima che qualcosa venga registrato.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Mostra…</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Nascondi test e impostazioni</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Mostra test e impostazioni</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Rinomina questo rapporto. Il nome compare anche sulle immagini che condividi.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Titolo del rapporto</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Condividi un’immagine del rapporto</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Elimina misurazione</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Contrai</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Non dal disco</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Riempire il disco?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Il test scrive finché restano liberi %1, poi rimuove tutto. Su un’unità grande richiede molto tempo, e a tutto il resto mancherà lo spazio su di essa fino alla fine del test.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Riempi disco</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Mostra nella cartella: %1</translation>
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
        <translation>Controlli precedenti</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>Guasto imminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Verificato</translation>
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
        <translation>&amp;Cronologia</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copia come testo</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copia come tabella Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Salva misurazioni…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Esporta CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lettura</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Elimina %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Elimina questa misurazione</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Pronto per la misurazione</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Scegli un volume per iniziare</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Regola test e impostazioni a sinistra, poi premi «Avvia misurazione».</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Scegli un volume montato o una cartella dalla barra degli strumenti.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
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
        <translation>Unità %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Intera misurazione</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>questo volume</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Barra dei menu</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Seleziona le misurazioni da confrontare</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Misurazioni precedenti</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Confronta %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>misurazione attuale</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Eliminare tutte le misurazioni salvate?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Elimina tutto</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>Cartella di lavoro:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>temporanea, viene creata lì e poi rimossa</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva come</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Misurazioni di Tarnwick</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Velocità dei dischi e analisi dei volumi</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Scansiona per misurare il tuo</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Tipo di segnalazione</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Richiesta di funzionalità</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Riepilogo – una descrizione di una riga</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>Che cosa vorresti che %1 facesse?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Che cosa è successo? Passi per riprodurlo e che cosa ti aspettavi.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>Email – facoltativa, se desideri una risposta</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>Saranno allegati: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Grazie</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Segnala un problema</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>La tua segnalazione è stata registrata. Grazie per l’aiuto a migliorare %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Segnala sul Web:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Avvia misurazione</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Velocità di trasferimento nel tempo</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>In ombra: l’ultimo terzo di ogni test, la cui mediana è la velocità sostenuta. Triangoli: velocità di picco e minima.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Scrittura sequenziale</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Lettura sequenziale</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Rinomina rapporto…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Condividi immagine del rapporto…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Copia valori</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copia come testo</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copia come tabella Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Salva file di misurazione…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Esporta CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Confronta con l’ultima misurazione di questo volume</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Elimina misurazione</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>È in corso un controllo della capacità</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>È in corso una misurazione</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Misurazione non riuscita</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>scrittura %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>lettura %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Misurazione completata</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Controllo della capacità completato</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Controllo della capacità non riuscito</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>Su questi valori</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Che cosa significano queste note</translation>
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
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Salva questi valori in un file di testo</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Blocco scrittura</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Blocco lettura</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Blocco casuale</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>Ignora la cache</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Copia immagine</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salva come…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Invia per email…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copia come testo</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copia come tabella Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Salva file di misurazione…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Salva misurazioni…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Esporta CSV…</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Test e impostazioni</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Controllo…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Misurazione…</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completata</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscita</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 è gratuito.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>Se ti è utile, il tuo sostegno aiuta a mantenerlo attivo.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Sostieni su Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Non ora</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Nascondi per una settimana</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>Ho già sostenuto %1</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scrittura</translation>
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
        <translation>Informazioni su Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controlla aggiornamenti…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Scegli cartella…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Apri file di misurazione…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Misurazione</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Avvia misurazione</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Controlla capacità…</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Annulla eliminazione</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Aiuto di Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Segnala un problema…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Sostieni Tarnwick…</translation>
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
        <translation>Tutto lo spazio libero</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Dopo %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Campioni distribuiti su tutto lo spazio scelto vengono scritti, riletti e rimossi. Richiede pochi secondi, trova la maggior parte delle capacità false e non prova nulla se non ne trova.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>%1 vengono scritti, riletti, confrontati e rimossi. I tuoi file non vengono toccati.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Tutto lo spazio libero viene scritto, riletto, confrontato e liberato. I tuoi file non vengono toccati.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Tutto lo spazio libero, circa %1, viene scritto, riletto, confrontato e liberato. Su un volume grande ci vogliono ore; nel frattempo il volume è pieno per gli altri programmi. I tuoi file non vengono toccati.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1% del controllo</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>in una parte</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>in %1 parte</numerusform>
            <numerusform>in %1 parti</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>Da %1 a %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Controllato</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Testo copiato</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Impossibile copiare il testo.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Impossibile salvare il file: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Salvato come «%1»</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>completato</translation>
    </message>
    <message>
        <source>running</source>
        <translation>in corso</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>da eseguire</translation>
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
        <translation>pochi secondi</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>circa %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>circa %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>circa %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Ancora %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>Ancora %1 per questo test</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 operazioni</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparazione…</translation>
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
        <translation>%1 misurazioni</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Testo copiato</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Tabella copiata</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Impossibile copiare il testo.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Elenchi di misurazioni</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Misurazioni di Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Tabelle CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Impossibile salvare il file: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Salvato come «%1»</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>riferimento</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Non dal disco: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Non dal disco: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Lettura casuale %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Scrittura casuale %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operazioni sui file</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Lettura/Scrittura</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Casuale</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libero</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>Ignorata</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>Usata</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Valori copiati</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Impossibile copiare i valori.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, non dal disco</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>Immagine copiata</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Impossibile copiare l’immagine.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Impossibile salvare l’immagine: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Salvato come «%1»</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Impossibile aprire la cartella.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Impossibile aprire un programma di posta.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>File sparsi</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Clonazione</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Istantanee</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Hard link</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Link simbolici</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Maiuscole: non noto</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>Maiuscole distinte</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Maiuscole non distinte</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Impossibile aprire la cartella.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Dimensione I/O ottimale</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Dimensione blocco</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Nome file max</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 caratteri</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Percorso max</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libero</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Non noto: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Nessun valore S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Controlla automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Cerca una nuova versione circa una volta al giorno e chiede conferma prima di installarla. Se disattivato, Tarnwick controlla solo quando scegli «Controlla aggiornamenti».</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Controlla ora</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Questa versione non si aggiorna da sola. Le versioni di sviluppo sono compilate senza la fonte degli aggiornamenti, perciò non possono sostituirsi con una versione rilasciata.</translation>
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
        <translation>Sostieni Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick è gratuito ed è opera di un solo sviluppatore. Il tuo sostegno copre l’hosting e il tempo necessario a portarlo avanti.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Sostieni su Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Ho già sostenuto Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Nasconde la nota di sostegno in fondo alla barra laterale.</translation>
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
        <translation>Velocità di trasferimento nel tempo</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimizza</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Massimizza</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>%1 misurazioni eliminate</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Misurazione eliminata</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
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
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Note di rilascio</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Salta questa versione</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Controllare automaticamente gli aggiornamenti?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Controllo degli aggiornamenti…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Il programma è aggiornato</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>È disponibile una nuova versione di %1</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Scaricamento dell’aggiornamento…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Controllo della firma dell’aggiornamento…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>L’aggiornamento è pronto per l’installazione</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Impossibile controllare gli aggiornamenti</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Impossibile ottenere l’aggiornamento</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 può cercare una nuova versione circa una volta al giorno. Non invia nulla su di te o sui tuoi dischi e chiede conferma prima di scaricare qualsiasi cosa.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 è la versione più recente.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>Hai la versione %1. Per la %2 occorre scaricare %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2 è firmato dal suo produttore. Da qui prosegue l’installatore di software del sistema.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Controlla automaticamente</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Installa aggiornamento</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Non controllare</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Impossibile raggiungere il server degli aggiornamenti. Controlla la connessione a Internet e riprova.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Impossibile leggere la risposta del server degli aggiornamenti.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>Il server degli aggiornamenti di questa versione non si raggiunge con una connessione sicura, perciò non gli è stato chiesto nulla.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Esiste una nuova versione di %1, ma il server degli aggiornamenti non indica che cosa serve per scaricarla in sicurezza.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Impossibile scaricare l’aggiornamento. Controlla la connessione a Internet e riprova.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>Il file scaricato non ha la lunghezza che l’aggiornamento dovrebbe avere, perciò è stato eliminato.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>Il file scaricato non è firmato dal produttore di %1, perciò è stato eliminato.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>Nella cartella temporanea non c’è spazio sufficiente per l’aggiornamento.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Impossibile scrivere l’aggiornamento nella cartella temporanea.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>Nessun programma di questo sistema apre il pacchetto dell’aggiornamento.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Seleziona un volume</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Nessun volume selezionato</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Volumi montati</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Scegli cartella…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Controlla capacità…</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Velocità sostenuta: la velocità mediana dell’ultimo terzo del test, alla quale si assesta una lunga copia; picco e minimo sono il decimo di secondo più veloce e il più lento.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Fa passare i dati al di fuori della memoria del sistema, così che si misuri il disco e non la cache.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Scrive un unico file grande dall’inizio alla fine e svuota i buffer sul disco, come fa una lunga copia su questo volume.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Legge un unico file grande dall’inizio alla fine, come fa una lunga copia da questo volume.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Legge blocchi in punti sparsi del file, uno alla volta come la maggior parte dei programmi: di più insieme misurerebbero la coda dell’unità e non quanto si aspetta; gli IOPS sono il numero di tali operazioni al secondo.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Scrive blocchi in punti sparsi del file, uno alla volta come la maggior parte dei programmi: di più insieme misurerebbero la coda dell’unità e non quanto si aspetta; gli IOPS sono il numero di tali operazioni al secondo.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Crea, cerca, rinomina ed elimina file vuoti; il valore indica quanti ne ha creati al secondo.</translation>
    </message>
</context>
</TS>
