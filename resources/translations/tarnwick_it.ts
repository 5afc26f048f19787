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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Spazio insufficiente: servono %1, ne sono liberi solo %2.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>Errore di I/O: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Impossibile scrivere lì. Il volume potrebbe essere in sola lettura, oppure la cartella non lo permette.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>Il file di test è troppo piccolo per la dimensione del blocco casuale.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Scrittura sequenziale</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Lettura sequenziale</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lettura casuale</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Scrittura casuale</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operazioni sui file</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>file/s</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>peggiore %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Durante la misurazione la cartella è stata rimossa o il suo volume scollegato.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Il volume è stato scollegato, oppure il suo server non c’è più.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>L’unità ha segnalato un errore o è stata scollegata durante la misurazione.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>Il volume si può solo leggere: i sistemi passano a questa modalità quando vi trovano un errore.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>Il volume si è riempito durante la misurazione, oppure la tua quota è esaurita.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>Il file system, o un limite di questa sessione, non consente file di queste dimensioni.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>I permessi della cartella sono cambiati durante la misurazione, oppure il sistema lì non lo consente.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>La memoria non basta per blocchi di queste dimensioni.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Al momento sono aperti troppi file; chiudi qualche programma e riprova.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>L’intestazione della risposta è troppo lunga</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Nessun proxy utilizzabile</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>Impossibile caricare libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Impossibile inviare la segnalazione da questa sandbox, che non ha rete.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <translation>Capacità di %1</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>Capacità del volume</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lettura</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Ciò che nessun controllo può dire: se lo spazio occupato dai tuoi file è sano, che cosa l’unità tiene di riserva e se un blocco riparato durerà.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Questo file system non riserva spazio senza scriverlo, perciò non è stato possibile distribuire i campioni. Il risultato non dice nulla sulla dimensione del volume: esegui un controllo che non si limiti ai campioni.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Un controllo rapido scrive solo in pochi punti: ciò che sta tra l’uno e l’altro non è stato esaminato.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Un controllo rapido scrive solo in pochi punti. Trova la maggior parte delle capacità false in pochi secondi; non trovare nulla non prova nulla.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>È stato controllato meno del previsto: il volume si è riempito troppo presto. Potrebbe aver perso dati del file system stesso.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>È stato controllato meno del previsto: altri programmi potrebbero aver occupato lo spazio.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Questo volume tiene i suoi file in memoria: nessun disco è stato controllato.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Dati letti provenienti dal disco: solo %1&#xa0;%. Controlla più di quanto la memoria del computer possa contenere.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Il disco dietro questo volume non è visibile, perciò quanto restituito può provenire da una cache.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>Ciò che viene scritto oltre la sua dimensione reale va perso o distrugge ciò che si trova altrove sul volume. Copia quello che ti serve e non fidarti di esso.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Il controllo è stato fermato: di ciò che non aveva riletto non si sa nulla.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Questo file system non restituisce nulla che non corrisponda alle proprie somme di controllo: i dati alterati non si possono leggere.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Capacità di %1</translation>
    </message>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Questo file system non può distribuire i campioni: sono stati controllati solo %1 in un unico punto, che contengono ciò che è stato scritto.</translation>
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
        <translation>La tua quota sul volume si è esaurita dopo %1 su %2; questi contengono ciò che è stato scritto.</translation>
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
        <source>about %1</source>
        <translation>circa %1</translation>
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
        <source>In one place</source>
        <translation>In un unico punto</translation>
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
        <translation>Lettura non riuscita</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Scrittura non riuscita</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Solo al secondo tentativo</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lettura</translation>
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
        <translation>Uso: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Apre l’analizzatore di velocità dei dischi e di volumi, sceglie la prima cartella e mostra i file di misurazione (*.tarnwickrun).
  --check-capacity  passa al controllo del volume di quella cartella
  --choose-folder   chiedi una cartella
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 non è una cartella né un file di misurazione che si possa aprire.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Scrittura nel tempo</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Lettura nel tempo</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>riferimento</translation>
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
        <translation>Confronto tra misurazioni</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>%n misurazione a confronto</numerusform>
            <numerusform>%n misurazioni a confronto</numerusform>
        </translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>Confronto di %n misurazione</numerusform>
            <numerusform>Confronto di %n misurazioni</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Condividi un’immagine del confronto</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Differenze rispetto a</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lettura casuale</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Scrittura casuale</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. sui file</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>op/s</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 liberi</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Test di riempimento</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>Test con %1</translation>
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
        <translation>Cas. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Senza cache</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>Con cache</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>DialogsText</name>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Misurazioni di Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>«%1» è danneggiato o non è una misurazione di Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>«%1» non è una cartella né un file di misurazione che si possa aprire.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>«%1» e %2 altro sono danneggiati o non sono misurazioni di Tarnwick.</numerusform>
            <numerusform>«%1» e altri %2 sono danneggiati o non sono misurazioni di Tarnwick.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>«%1» e %2 altro non sono cartelle né file di misurazione che si possano aprire.</numerusform>
            <numerusform>«%1» e altri %2 non sono cartelle né file di misurazione che si possano aprire.</numerusform>
        </translation>
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
        <translation>Rinomina questo rapporto. Il nome compare anche nelle immagini che condividi.</translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Misurazione: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>non dal disco</translation>
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
        <translation>Il test scrive finché non restano liberi solo %1, poi rimuove tutto. Su un’unità grande richiede molto tempo, e fino alla fine del test mancherà spazio a tutto il resto che ne ha bisogno.</translation>
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
        <translation>Controlli precedenti</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Guasto imminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Verificato</translation>
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
        <translation>Avviso critico</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Vita utile consumata</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Riserva disponibile</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Soglia della riserva</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Tempo di accensione</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Cicli di accensione</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Cicli di parcheggio delle testine</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Spegnimenti non sicuri</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Dati scritti</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Dati letti</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Comandi di lettura dell’host</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Comandi di scrittura dell’host</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Tempo di attività del controller</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Settori riallocati</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Settori in attesa</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Settori non correggibili</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Errori non correggibili segnalati</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Tentativi ripetuti di avvio rotazione</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Errori CRC dell’interfaccia</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Errori del supporto</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Voci nel registro errori</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Dischi</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Riserva sotto la soglia</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Affidabilità ridotta</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Backup della memoria volatile non riuscito</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 anni</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>Risposta da %1 dischi su %2</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>nessun dispositivo si trova dietro questo percorso</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>nessun disco si trova dietro %1</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 non è un dispositivo a blocchi</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 non indica se è in standby, perciò non è stato interrogato</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 è in standby e non è stato interrogato</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 non ha S.M.A.R.T., oppure è disattivato</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 non ha un’interfaccia S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 non inoltra i comandi S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 non fornisce il proprio registro di salute NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 può essere interrogato solo da un amministratore</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 è fuori dalla portata di questo processo</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 non risponde</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 non risponde per %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 non risponde</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 non legge lo stato di salute delle unità NVMe (la versione 2.10 sì)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 non ha valori di salute per %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 non ha un verdetto sulla salute di %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 non conosce alcuna unità dietro %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>S.M.A.R.T. ATA di %1, che ha dato il suo verdetto senza valori</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>S.M.A.R.T. ATA di %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>Registro di salute NVMe di %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 per %1, letto %2 min fa</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 per %1</translation>
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
        <translation>%1, e %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 giorno</numerusform>
            <numerusform>%1 giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Guasto imminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Verificato</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lettura</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Elimina %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Elimina questa misurazione</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Arresto, rimozione dei file</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>Impossibile esprimere il controllo in JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>Maiuscole distinte</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Maiuscole conservate</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>File sparsi</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Hard link</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Link simbolici</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Attributi estesi</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Flussi con nome</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Liste di controllo degli accessi</translation>
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
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Journal attivo</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Sigillato</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>non noto</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponibile</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usato</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Cifrato</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Montato in</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Dimensione blocco</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Trasferimento ottimale</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Nome più lungo</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Percorso più lungo</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Numero massimo di link</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Collegata tramite</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaccia</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(attenzione)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>nessun valore S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>impossibile avviare %1, fornito insieme alla finestra</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 non risponde</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 è una cartella</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 non è un file regolare</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 esiste e non contiene misurazioni; --force lo sostituirebbe</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Un valore di questa misurazione supera ciò che un file può contenere.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>Impossibile scrivere la cronologia.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Impossibile scrivere il risultato</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 non è una cartella</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 non è in questa sandbox, che ha solo alcune cartelle del computer</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 appartiene alla sandbox stessa; la cartella del computer con quel nome le è nascosta.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>In questa cartella ci sono file di un’altra misurazione in uso, che non sono stati rimossi.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: lo svuotamento dei buffer sul disco non è riuscito (%2); potrebbe mancare una parte di ciò che è stato scritto.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Preparazione: lo svuotamento dei buffer sul disco non è riuscito (%1); potrebbe mancare una parte di ciò che è stato scritto.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Impossibile scrivere il file di misurazione nella tua cartella temporanea.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>Impossibile aggiungere la misurazione alla cronologia.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 è più grande di quanto possa essere un file di misurazione (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>impossibile leggere %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>lo standard input è più grande di quanto possa essere un file di misurazione (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>lo standard input non è un file di misurazione: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 non è un file di misurazione: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>Impossibile disegnare l’immagine: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>Impossibile disegnare l’immagine o scriverla nella tua cartella temporanea.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>Disegna con i colori scuri</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Un file di misurazione è ciò che scrive «run --handoff», per una misurazione. L’immagine è un file PNG largo 1616 pixel,
con un margine trasparente; ne viene stampato il percorso. Non serve uno schermo. Un’immagine con lo stesso titolo
sostituisce la precedente; resta fino alla fine della sessione o finché il sistema non svuota la sua cartella temporanea.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Stato di uscita: 0 completato, 1 impossibile leggere un file o creare l’immagine, 2 uso errato.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Disegna un’immagine di una misurazione da condividere, o di più misurazioni a confronto</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Quanto scrivere e rileggere (predefinito: tutto lo spazio libero)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Quanto resta comunque libero (predefinito: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Campioni distribuiti sull’intervallo, in pochi secondi:
trova una capacità falsa e non prova nulla se non ne trova</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Rileggi tutto ancora una volta, S secondi dopo</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Stampa un oggetto JSON: il verdetto, la frase e tutto ciò che è stato trovato</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Scrive in una cartella nascosta dentro FOLDER file diversi in ogni blocco, li rilegge ignorando la cache del sistema, confronta
tutto e li rimuove, anche dopo Ctrl+C. Nessuno dei tuoi file viene toccato; ma su un dispositivo con una capacità falsa ogni
scrittura oltre la dimensione reale può distruggere ciò che vi si trova, come qualsiasi altro uso. --quick scrive solo campioni.
I file di un controllo interrotto con la forza vengono rimossi dalla misurazione o dal controllo successivo in FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES sono semplici cifre, o cifre seguite da K, M, G, T (KiB, MiB, GiB, TiB: passi di 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Stato di uscita: 0 nulla di anomalo, 1 errore, 2 uso errato, 3 trovati difetti,
130 fermato da un segnale; viene stampato quanto trovato fino a quel momento.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Controlla se un volume è grande quanto dichiara e conserva ciò che gli viene affidato</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>Come text (predefinito), markdown, csv o json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Consenti a --output di sostituire un file con qualsiasi contenuto</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Stampa i dati come oggetto JSON</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Stampa l’elenco come array JSON</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Non viene scritto nulla da nessuna parte. Ciò che il sistema non
comunica appare come «--» o «non noto» e manca nell’oggetto JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Ogni file system compare una volta sola, con il punto di montaggio più corto. Ciò che il sistema, i suoi
pacchetti e i suoi container montano per sé viene omesso. Un server che non risponde in tempo non ha capacità.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>L’unità viene solo consultata: se è in standby non viene risvegliata, e nulla vi viene
attivato. Da dove proviene il suo stato di salute, o perché manca, lo dice «facts».</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Mostra che cosa contiene FOLDER: volume, file system, unità e sua salute</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Elenca i volumi montati</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Stampa la salute dell’unità che contiene FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Mostra questo testo</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick in un terminale: quanto è veloce un disco, misurato su di esso senza lasciarvi nulla.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Mostra questo testo o, dopo un comando, le opzioni di quel comando</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostra la versione</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>Il file che scrive «export»</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Consenti a «delete» di eliminare tutte le misurazioni</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION è una delle seguenti</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>una riga per misurazione, la più recente per prima, che inizia con il suo nome (predefinito)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>stampa misurazioni come fa «show», nel formato indicato da --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>scrivi misurazioni nel FILE di --output, nel formato di --format o del nome
di FILE: .csv, .json, .md, .txt, oppure .tarnwickrun per una sola misurazione</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>elimina misurazioni, senza conferma e per sempre</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>Un RUN si indica come nell’elenco, o con quattro o più caratteri iniziali del suo id. Senza RUN si intendono tutte
le misurazioni; «delete» richiede allora --all. Una finestra aperta si aggiorna appena torni a essa. --output
sostituisce un file esistente solo se è vuoto o contiene misurazioni; con --force anche qualsiasi altro file.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Stato di uscita: 0 completato, 1 misurazione inesistente o errore, 2 uso errato.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Elenca, mostra, esporta o elimina le misurazioni conservate dalla finestra</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES sono semplici cifre, o cifre seguite da K, M, G, T (KiB, MiB, GiB, TiB: passi di 1024). I blocchi vengono arrotondati
per eccesso a pagine intere di 4096. I valori predefiniti sono quelli della finestra, così che i suoi risultati e questi siano
confrontabili, tranne per i blocchi dei test sequenziali: la finestra usa il «Trasferimento ottimale» mostrato da «facts».</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Tutto viene scritto in una cartella nascosta dentro FOLDER e rimosso alla fine, anche dopo Ctrl+C. Ciò che una misurazione interrotta
con la forza ha lasciato in FOLDER viene rimosso prima dell’avvio; i file ancora in uso restano, dopo un secondo di attesa.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>I file di --handoff e --card restano fino alla fine della sessione o finché il sistema non svuota la sua
cartella temporanea. --output sostituisce un file esistente solo se è vuoto o contiene misurazioni (un file
di misurazione, o ciò che «show --format» e «history export» scrivono come json o csv); con --force anche
qualsiasi altro file. Una finestra aperta mostra una misurazione aggiunta con --keep appena torni a essa. Se
qualcosa non si può scrivere, i valori vengono stampati ugualmente e la misurazione conta come non riuscita.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Stato di uscita: 0 completato, 1 errore, 2 uso errato, 130 fermato da un segnale.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Misura il file system che contiene FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Test da eseguire, sempre in quest’ordine: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (predefinito: tutti)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Dimensione del file di dati, o fill per riempire il disco (predefinito: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>Quanto lascia libero --size fill (predefinito: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Byte per chiamata, scrittura sequenziale (predefinito: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Byte per chiamata, lettura sequenziale (predefinito: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Byte per operazione casuale (predefinito: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Operazioni in ogni test casuale (predefinito: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>File nel test delle operazioni sui file (predefinito: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Lascia che il sistema tenga il file di dati nella cache, come fanno i programmi comuni</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Intervallo minimo tra due campionamenti, in secondi (predefinito: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Stampa un oggetto JSON: il piano, ogni valore, ogni campionamento,
data, cartella, volume, file system, unità, kernel e, sotto «evidence»
e «remarks», che cosa è stato osservato e che cosa significa</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Scrivi lì un file di misurazione, per la finestra, per «show» e per altri</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Aggiungi la misurazione alla cronologia della finestra</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Scrivi un file di misurazione per la finestra e per «show» e stampane il
percorso come ultima riga; con --json: come «handoffFile» nell’oggetto</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Disegna un’immagine della misurazione da condividere, con colori chiari (light) o
scuri (dark), e stampane il percorso come ultima riga; con --json: come «cardFile»</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Un file di misurazione è ciò che scrivono «run --handoff» e «run --output», per una misurazione. La cronologia
della finestra (history.json) e l’output di «show --format json» ne hanno diverse. «-» è lo standard input.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>Come testo, delle barre confrontano i valori di più misurazioni: il più grande di ogni tipo occupa tutta la larghezza, e «--» appare
dove una misurazione non ne ha. Le righe stanno nel terminale, o in 80 colonne. Una tabella Markdown è per i forum. CSV ha una
riga per misurazione, con numeri semplici per fogli di calcolo e script. JSON è un elenco dei contenuti dei file di misurazione.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Per un file che non si può mostrare c’è una riga sullo standard error; gli altri vengono mostrati.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Stato di uscita: 0 tutti mostrati, 1 non tutti, 2 uso errato.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Mostra misurazioni dai loro file, anche più d’una fianco a fianco</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>nella cronologia non c’è la misurazione %1</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 indica più misurazioni</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Misurazione</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Avvio</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>ancora %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Arresto, rimozione dei file di test</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Preparazione del file di test, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Avvio, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Sostenuta</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Picco</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Complessiva</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operazioni</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Peggiore</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Consulta</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>manca un RUNFILE da disegnare</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 può essere al massimo un anno</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>l’opzione %1 non esiste</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 non accetta valori</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 richiede un valore: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 si usa solo con %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 richiede un numero intero da %2 a %3, non %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 richiede un numero di byte, come 4096, 64K o 5GiB, da %2 a %3, non %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 richiede un numero di secondi, 0 o più, non %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>manca un FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>un solo FOLDER alla volta</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 è text, markdown, csv o json, non %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 richiede il nome di un file</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 non accetta operandi</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 richiede %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>un file di misurazione contiene una misurazione, non %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>%1 è necessario se il nome di FILE non termina con .tarnwickrun, .csv, .json, .md o .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 richiede RUN oppure %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 si usa solo con %2 e %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 conosce list, show, export e delete, non %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>manca un comando; vedi %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>il comando %1 non esiste; vedi %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>manca un FOLDER da misurare</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>manca un FOLDER da controllare</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>un solo FOLDER alla volta, non anche %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>il nome di FOLDER è vuoto</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: il test %2 non esiste, solo %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 è light o dark, non %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>manca un FILE da mostrare</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Avviso</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Tutto lo spazio libero</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <translation>%1&#xa0;% del controllo</translation>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>Da %1 a %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
        <translation>Unità %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>completato</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>in corso</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>da eseguire</translation>
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
        <translation>Ancora pochi secondi</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>Ancora pochi secondi per questo test</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Ancora circa %n s</numerusform>
            <numerusform>Ancora circa %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>Ancora circa %n s per questo test</numerusform>
            <numerusform>Ancora circa %n s per questo test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Ancora circa %n min</numerusform>
            <numerusform>Ancora circa %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>Ancora circa %n min per questo test</numerusform>
            <numerusform>Ancora circa %n min per questo test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Ancora circa %n h</numerusform>
            <numerusform>Ancora circa %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>Ancora circa %n h per questo test</numerusform>
            <numerusform>Ancora circa %n h per questo test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 di %2 operazione</numerusform>
            <numerusform>%1 di %2 operazioni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparazione…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Svuota</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Confronta %n</numerusform>
            <numerusform>Confronta %n</numerusform>
        </translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>Dati scritti arrivati al disco durante il test: al massimo %1.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>Dati scritti arrivati al disco durante il test: %1.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>Dati letti provenienti dal disco: al massimo %1.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>Dati letti provenienti dal disco: %1.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Non tutto ciò che è stato scritto è passato dai buffer al disco: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>Il file di test non è passato dai buffer al disco: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 per i primi %2, poi %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>L’unità ha raggiunto %1 dopo %2 (limite %3) e da allora la velocità è stata inferiore (−%4).</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Una pausa oltre 1 s: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 pausa oltre 1 s, la più lunga %2.</numerusform>
            <numerusform>%1 pause oltre 1 s, la più lunga %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>Durante il test altri programmi hanno trasferito %1 sullo stesso disco.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>Il collegamento %1 dell’unità funziona a %2; l’unità potrebbe raggiungere %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>La partizione inizia %1 dopo l’inizio di un blocco fisico di %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>Spazio libero sul volume: solo %1.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>I %1 del test potrebbero stare in una cache di %2.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>Il computer era alimentato a batteria.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>Il processore era impostato per il risparmio energetico.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>Il computer era alimentato a batteria, con il processore impostato per il risparmio energetico.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>Il file system scrive le modifiche in nuove posizioni e calcola somme di controllo dei dati.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>Il file system scrive le modifiche in nuove posizioni.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Attiva «Ignora la cache». Se è già attivo, scegli una dimensione maggiore della memoria del computer.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Guarda lo stato S.M.A.R.T. dell’unità e il registro di sistema prima di affidarle dei dati.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Dei dati sono passati da una cache, benché al sistema fosse stato chiesto di ignorarla.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Scegli una dimensione maggiore della memoria del computer, oppure prova il disco sottostante tramite un altro file system.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Quando si trasferisce di più in una volta, aspettati la velocità più bassa.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Dai all’unità più aria o un dissipatore, e ripeti la misurazione quando si è raffreddata.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Ripeti la misurazione. Se le pause ritornano, controlla lo stato S.M.A.R.T. dell’unità e il suo cavo.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Ripeti la misurazione mentre nient’altro usa il disco.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Prova con un’altra porta, un altro slot o un altro cavo.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Ricrea la partizione facendola iniziare a un multiplo di 1 MiB. Questo ne cancella i dati.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Libera un po’ di spazio: molte unità e molti file system rallentano quando sono pieni.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Scegli una dimensione maggiore e attiva «Ignora la cache».</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Ripeti la misurazione con l’alimentazione dalla rete elettrica e senza risparmio energetico.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>Il disco dietro questo volume non è visibile, perciò non si può dire quale sia stato il suo contributo.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Questo volume tiene i suoi file in memoria; nessun disco è stato misurato.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Scegli una cartella su un disco.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Questo volume è un file su un altro volume.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Per misurare direttamente quel volume, scegli una cartella al suo interno.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>Il disco è quello di una macchina virtuale, il cui host potrebbe tenerlo in cache.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>Il file system comprime. I dati del test non si comprimono, perciò altri file possono essere più veloci.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>Il file system scrive i dati due volte, prima nel suo journal.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Questa cartella è stata raggiunta attraverso il portale del desktop, un programma che entra nei valori.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Consenti alla sandbox di usare la cartella stessa e sceglila di nuovo.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Non valido</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Cautela</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>Da notare</translation>
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
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Saranno allegati: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick – Confronto</translation>
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
        <translation>La tua segnalazione è stata registrata. Grazie per l’aiuto nel migliorare %1.</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Area ombreggiata: l’ultimo terzo di ogni test, la cui mediana è la velocità sostenuta. Triangoli: velocità di picco e minima.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Misurazione</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
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
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (non valido)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick – %n misurazione</numerusform>
            <numerusform>Ondel Tarnwick – %n misurazioni</numerusform>
        </translation>
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
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Non dal disco: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Non dal disco: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Lettura casuale %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Scrittura casuale %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operazioni sui file</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Lettura/Scrittura</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Libero</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>Ignorata</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>Con cache</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>È in corso un controllo della capacità</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>È in corso una misurazione</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>scrittura %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>lettura %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Misurazione non riuscita</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Misurazione completata</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Controllo della capacità non riuscito</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Controllo della capacità completato</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lettura casuale</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Scrittura casuale</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. sui file</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>picco %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>min %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, picco</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, minimo</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, latenza</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>Su questi valori</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>Server %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Server di rete</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Unità esterna</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Volume di rete</translation>
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
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  (attenzione)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaccia</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Rapporto S.M.A.R.T. di Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  ottimale</translation>
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
        <extracomment>Button: opens a menu</extracomment>
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
    <name>SharedImageText</name>
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
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>TargetFactsText</name>
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
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 esterno</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 interno</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 rimovibile</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 di rete</translation>
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
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 carattere</numerusform>
            <numerusform>%1 caratteri</numerusform>
        </translation>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Libero</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Non noto: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Nessun valore S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Scegli una cartella sul volume da testare (una cartella di lavoro temporanea viene creata lì e poi rimossa).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Seleziona</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>la finestra già aperta non risponde; farà ciò che è stato chiesto appena possibile.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>la finestra già aperta (processo %1) non risponde; farà ciò che è stato chiesto appena possibile.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>Come il desktop</translation>
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
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Lingua della finestra</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>Vale per la finestra al prossimo avvio di Tarnwick.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Immagini condivise in inglese</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Se disattivato, i loro testi sono nella lingua della finestra.</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: da %2 a %3 %6 in %4, ultimo %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Ancora nessun valore.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Minimizza</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Massimizza</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>%n misurazione eliminata</numerusform>
            <numerusform>%n misurazioni eliminate</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Misurazione eliminata</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2&#xa0;%</translation>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
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
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Interno</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Esterno</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Rimovibile</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Radice</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Riempi disco</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Velocità sostenuta: la velocità mediana dell’ultimo terzo del test, alla quale si assesta una lunga copia; picco e minimo sono il decimo di secondo più veloce e quello più lento.</translation>
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
        <translation>Legge blocchi in punti sparsi del file, uno alla volta come la maggior parte dei programmi: leggerne più di uno insieme misurerebbe la coda dell’unità e non quanto si aspetta; gli IOPS sono il numero di tali operazioni al secondo.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Scrive blocchi in punti sparsi del file, uno alla volta come la maggior parte dei programmi: scriverne più di uno insieme misurerebbe la coda dell’unità e non quanto si aspetta; gli IOPS sono il numero di tali operazioni al secondo.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Crea, consulta, rinomina ed elimina file vuoti; il valore indica quanti ne ha creati al secondo.</translation>
    </message>
</context>
</TS>
