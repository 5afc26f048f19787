<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Soutenir %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Remerciements</translation>
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
        <translation>Plus</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Indisponible pour le moment</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Indisponible pour le moment</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>pic %1
min %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>pic %1 · min %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Impossible de joindre le serveur. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>Le serveur a refusé le signalement (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Fonctions du volume</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>Le volume est-il aussi grand qu’il l’annonce, et conserve-t-il ce qu’on lui confie ?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Espace à vérifier</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Seconde relecture</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Rapide : échantillons seuls</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Lancer la vérification</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Enregistrer le rapport…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Copier le rapport sous forme de texte</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Nouvelle vérification</translation>
    </message>
</context>
<context>
    <name>CapacityKey</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>CapacityLive</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1 : %2 %</translation>
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
        <translation>Capacité de %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Retour aux mesures</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Carte de l’espace vérifié</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Débit le long de l’espace, jusqu’à %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Ce volume ne conserve que les premiers %1 de ce qu’on y écrit.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Ce volume annonce %1, mais ne conserve que les premiers %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Ce volume annonce %1, mais ne conserve que les premiers %2 environ.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Un bloc à %1 était altéré à la relecture.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 bloc à %2 était altéré à la relecture.</numerusform>
            <numerusform>%1 blocs à %2 étaient altérés à la relecture.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 bloc était altéré à la relecture, le premier à %2.</numerusform>
            <numerusform>%1 blocs étaient altérés à la relecture, le premier à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 sur %2 étaient altérés à la relecture, le premier bloc à %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Un bloc à %1 était d’abord correct, puis a été altéré.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 bloc à %2 était d’abord correct, puis a été altéré.</numerusform>
            <numerusform>%1 blocs à %2 étaient d’abord corrects, puis ont été altérés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 bloc était d’abord correct, puis a été altéré, le premier à %2.</numerusform>
            <numerusform>%1 blocs étaient d’abord corrects, puis ont été altérés, le premier à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 sur %2 étaient d’abord corrects, puis ont été altérés, le premier bloc à %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>Un bloc à %1 n’a pas pu être lu.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>%1 bloc à %2 n’a pas pu être lu.</numerusform>
            <numerusform>%1 blocs à %2 n’ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>%1 bloc n’a pas pu être lu, le premier à %2.</numerusform>
            <numerusform>%1 blocs n’ont pas pu être lus, le premier à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>%1 sur %2 n’ont pas pu être lus, le premier bloc à %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>Un bloc à %1 n’a pas pu être écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>%1 bloc à %2 n’a pas pu être écrit.</numerusform>
            <numerusform>%1 blocs à %2 n’ont pas pu être écrits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>%1 bloc n’a pas pu être écrit, le premier à %2.</numerusform>
            <numerusform>%1 blocs n’ont pas pu être écrits, le premier à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Outre %2 écrits, %1 n’ont pas pu être écrits, le premier bloc à %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Un bloc à %1 n’a pu être écrit ou lu qu’au second essai.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%1 bloc à %2 n’a pu être écrit ou lu qu’au second essai.</numerusform>
            <numerusform>%1 blocs à %2 n’ont pu être écrits ou lus qu’au second essai.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 bloc n’a pu être écrit ou lu qu’au second essai, le premier à %2.</numerusform>
            <numerusform>%1 blocs n’ont pu être écrits ou lus qu’au second essai, le premier à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%1 sur %2 n’ont pu être écrits ou lus qu’au second essai, le premier bloc à %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Un bloc à %1 n’a pas été restitué tel qu’il avait été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%1 bloc à %2 n’a pas été restitué tel qu’il avait été écrit.</numerusform>
            <numerusform>%1 blocs à %2 n’ont pas été restitués tels qu’ils avaient été écrits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 bloc n’a pas été restitué tel qu’il avait été écrit, le premier à %2.</numerusform>
            <numerusform>%1 blocs n’ont pas été restitués tels qu’ils avaient été écrits, le premier à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%1 sur %2 n’ont pas été restitués tels qu’ils avaient été écrits, le premier bloc à %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>Avant d’être arrêtée, la vérification a rencontré des blocs qui n’ont pas été restitués tels qu’ils avaient été écrits, le premier à %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>Le volume a pu être écrit jusqu’à %1 sur %2, et a refusé tout le reste.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>La vérification a été arrêtée avant toute relecture.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>La vérification a été arrêtée alors que %1 sur %2 avaient été restitués intacts.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>Les échantillons contiennent ce qui a été écrit, mais ils sont proches les uns des autres.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Des échantillons répartis sur %1 contiennent ce qui a été écrit, ce qui n’est pas une preuve.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Des échantillons répartis sur %1 d’espace libre contiennent ce qui a été écrit, ce qui n’est pas une preuve.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Votre part du volume était épuisée après %1 sur %2 ; ceux-ci contiennent ce qui a été écrit.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Le volume était plein après %1 sur %2 ; ceux-ci contiennent ce qui a été écrit.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Les %1 ont tous été restitués intacts, mais surtout depuis la mémoire : cela en dit peu sur le disque.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Les %1 contiennent tous ce qui a été écrit.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Les %1 d’espace libre contiennent tous ce qui a été écrit.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Taille annoncée</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Espace à vérifier</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 d’espace libre</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, un tous les %2</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>La première lecture était correcte.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>À %1, %2 : un bit était inversé.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>À %1, %2 : %3 bit était inversé.</numerusform>
            <numerusform>À %1, %2 : %3 bits étaient inversés.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>raison inconnue</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>À %1, %2 : lecture impossible (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>À %1, %2 : écriture impossible (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>À %1, %2 : écriture ou lecture réussie au second essai seulement (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>À %1, %2 : ce qui avait été écrit ailleurs a été restitué.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>À %1, %2 : le bloc écrit à %3 a été restitué, encore et encore.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>À %1, %2 : ce qui avait été écrit à %3 a été restitué.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>À %1, %2 : des zéros ont été restitués.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>À %1, %2 : quelque chose qui n’y a jamais été écrit a été restitué.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Ce qu’aucune vérification ne peut dire : si l’espace occupé par vos fichiers est sain, ce que le disque garde en réserve, et si un bloc réparé tiendra.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Ce volume garde ses fichiers en mémoire : aucun disque n’a été vérifié.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Seuls %1 % de ce qui a été lu venaient du disque. Vérifiez plus que ce que la mémoire de la machine peut contenir.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Le disque derrière ce volume n’est pas visible ; ce qui a été restitué a donc pu venir d’un cache.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>La vérification a été arrêtée : ce qu’elle n’avait pas relu n’est pas connu.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Une vérification rapide n’écrit qu’à quelques endroits. Elle décèle la plupart des fausses capacités en quelques secondes ; ne rien trouver ne prouve rien.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>L’espace vérifié est moindre que prévu : d’autres programmes ont pu l’occuper.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Écrit</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Relu</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>Relu après %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Intact</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Altéré</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Lecture impossible</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Écriture impossible</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Au second essai</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Lu sur le disque</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>Et à un autre endroit.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>Et à %1 autre endroit.</numerusform>
            <numerusform>Et à %1 autres endroits.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Capacité de %1</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Préparation…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Écriture d’échantillons</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Relecture</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Attente</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Seconde relecture</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Non écrit</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Non inscriptible</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Comparer à la dernière mesure de ce volume</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>Écriture au fil du temps</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Lecture au fil du temps</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Comparaison de mesures</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>%1 mesures comparées</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Scannez pour l’essayer</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Ne vient pas du disque</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>Comparaison de %1 mesures</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Partager une image de la comparaison</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Écarts avec</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation>Terminée</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Joindre un diagnostic</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Activité récente de cette session. Les noms de fichiers, de serveurs et de comptes sont remplacés par des jetons anonymes avant tout enregistrement.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Afficher…</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Masquer les tests et réglages</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Afficher les tests et réglages</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Renommer ce rapport. Le nom figure aussi sur les images que vous partagez.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Titre du rapport</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Partager une image du rapport</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Supprimer la mesure</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Replier</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Ne vient pas du disque</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Remplir le disque ?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Le test écrit jusqu’à ce qu’il reste %1 libres, puis supprime tout. Sur un grand disque, cela prend longtemps, et tout ce qui a besoin d’espace sur ce disque en manquera jusqu’à la fin du test.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Remplir le disque</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Afficher dans le dossier : %1</translation>
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
        <translation>Vérifications précédentes</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>Défaillant</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Vérifié</translation>
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
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copier comme texte</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copier comme tableau Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Enregistrer les mesures…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exporter en CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Supprimer cette mesure</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Prêt à mesurer</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Choisissez un volume pour commencer</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Réglez les tests et les options à gauche, puis cliquez sur « Lancer la mesure ».</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Choisissez un volume monté ou un dossier dans la barre d’outils.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1 : %2 %</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>Disque %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Ensemble de la mesure</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>ce volume</translation>
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
        <translation>Barre de menus</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Sélectionner des mesures à comparer</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Mesures précédentes</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Comparer %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>mesure actuelle</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Supprimer toutes les mesures enregistrées ?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Tout supprimer</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>Dossier de travail :</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>temporaire, y est créé puis supprimé</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Mesures Tarnwick</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Vitesse des disques et analyse des volumes</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Scannez pour mesurer le vôtre</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Type de signalement</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Bogue</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Demande de fonctionnalité</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Résumé – une description en une ligne</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>Que voudriez-vous que %1 fasse ?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Que s’est-il passé ? Étapes pour reproduire, et ce que vous attendiez.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>Adresse électronique – facultative, si vous souhaitez une réponse</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>Seront joints : %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Merci</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Votre signalement a été enregistré. Merci d’aider à améliorer %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Signaler sur le Web :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Lancer la mesure</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Débit au fil du temps</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Zone ombrée : le dernier tiers de chaque test, dont la médiane est le débit soutenu. Triangles : débit de pic et débit minimal.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Écriture séquentielle</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Lecture séquentielle</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Renommer le rapport…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Partager une image du rapport…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Copier les valeurs</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copier comme texte</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copier comme tableau Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Enregistrer le fichier de mesure…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exporter en CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Comparer à la dernière mesure de ce volume</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Supprimer la mesure</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Une vérification de capacité est en cours</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Une mesure est en cours</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Échec de la mesure</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>écriture %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>lecture %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Mesure terminée</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Vérification de capacité terminée</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Échec de la vérification de capacité</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>À propos de ces valeurs</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Signification de ces remarques</translation>
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
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Enregistrer ces valeurs dans un fichier texte</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Bloc d’écriture</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Bloc de lecture</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Bloc aléatoire</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>Contourner le cache</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Copier l’image</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Envoyer par courriel…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copier comme texte</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copier comme tableau Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Enregistrer le fichier de mesure…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Enregistrer les mesures…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exporter en CSV…</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Tests et réglages</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Mesure en cours…</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Terminée</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 est gratuit.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>S’il vous est utile, votre soutien l’aide à continuer.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Soutenir sur Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Masquer pendant une semaine</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>J’ai déjà soutenu %1</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
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
        <translation>À propos d’Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Ouvrir un fichier de mesure…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Mesure</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Lancer la mesure</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Vérifier la capacité…</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Annuler la suppression</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Aide de Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Signaler un problème…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Soutenir Tarnwick…</translation>
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
        <translation>Tout l’espace libre</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Après %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Des échantillons répartis sur l’espace choisi sont écrits, relus et supprimés. Cela prend quelques secondes, décèle la plupart des fausses capacités, et ne prouve rien si aucune n’est trouvée.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>%1 sont écrits, relus, comparés et supprimés. Vos fichiers ne sont pas touchés.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Tout l’espace libre est écrit, relu, comparé et libéré. Vos fichiers ne sont pas touchés.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Tout l’espace libre, environ %1, est écrit, relu, comparé et libéré. Sur un grand volume, cela prend des heures ; pendant ce temps, le volume est plein pour les autres programmes. Vos fichiers ne sont pas touchés.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1 % de la vérification</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>dans une partie</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>dans %1 partie</numerusform>
            <numerusform>dans %1 parties</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 à %2 : %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Vérifié</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texte copié</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Impossible de copier le texte.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Impossible d’enregistrer le fichier : %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Enregistré sous « %1 »</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>à venir</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1 : %2, %3</translation>
    </message>
    <message>
        <source>A few seconds</source>
        <translation>quelques secondes</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>environ %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>environ %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>environ %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Encore %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>Encore %1 pour ce test</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 opérations</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Préparation…</translation>
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
        <translation>%1 mesures</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texte copié</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Tableau copié</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Impossible de copier le texte.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Listes de mesures</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Mesures Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Tableaux CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Impossible d’enregistrer le fichier : %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Enregistré sous « %1 »</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>référence</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Ne vient pas du disque : %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Ne viennent pas du disque : %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Lecture aléatoire %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Écriture aléatoire %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Opérations sur les fichiers</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Lecture/Écriture</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>Contourné</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Valeurs copiées</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Impossible de copier les valeurs.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, ne vient pas du disque</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>Image copiée</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Impossible de copier l’image.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Impossible d’enregistrer l’image : %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Enregistré sous « %1 »</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Impossible d’ouvrir le dossier.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Impossible d’ouvrir un logiciel de messagerie.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>Fichiers creux</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Clonage</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantanés</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Liens physiques</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Liens symboliques</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Casse inconnue</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>Sensible à la casse</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Insensible à la casse</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Impossible d’ouvrir le dossier.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Taille d’E/S optimale</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Taille de bloc</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Nom max.</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 caractères</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Chemin max.</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Inconnu : %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Pas de valeurs S.M.A.R.T. : %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Recherche une nouvelle version environ une fois par jour et demande avant de l’installer. Si cette option est désactivée, Tarnwick ne cherche que lorsque vous choisissez « Rechercher des mises à jour ».</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Rechercher maintenant</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Cette version ne se met pas à jour elle-même. Les versions de développement sont compilées sans le flux de mises à jour et ne peuvent donc pas se remplacer par une version publiée.</translation>
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
        <translation>Soutenir Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick est gratuit, et l’œuvre d’un seul développeur. Votre soutien couvre l’hébergement et le temps nécessaire pour le faire vivre.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Soutenir sur Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>J’ai déjà soutenu Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Masque le message de soutien en bas de la barre latérale.</translation>
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
        <translation>Débit au fil du temps</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximiser</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>%1 mesures supprimées</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Mesure supprimée</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
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
        <translation>Mise à jour logicielle</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Rechercher automatiquement les mises à jour ?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Vous avez la dernière version</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Une nouvelle version de %1 est disponible</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Téléchargement de la mise à jour…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Vérification de la signature de la mise à jour…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>La mise à jour est prête à être installée</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Impossible de rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Impossible d’obtenir la mise à jour</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 peut rechercher une nouvelle version environ une fois par jour. Il n’envoie rien sur vous ni sur vos disques, et demande avant tout téléchargement.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 est la version la plus récente.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>Vous avez %1. Le téléchargement de %2 représente %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2 est signé par son éditeur. L’installateur de logiciels de votre système prend le relais.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Rechercher automatiquement</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Installer la mise à jour</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Ne pas rechercher</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Impossible de joindre le serveur de mises à jour. Vérifiez la connexion à Internet et réessayez.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Impossible de lire la réponse du serveur de mises à jour.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>Le serveur de mises à jour de cette version n’est pas accessible par une connexion sécurisée ; rien ne lui a donc été demandé.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Il existe une nouvelle version de %1, mais le serveur de mises à jour n’indique pas ce qu’il faut pour la télécharger en toute sécurité.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Impossible de télécharger la mise à jour. Vérifiez la connexion à Internet et réessayez.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>Le fichier téléchargé n’a pas la longueur que devrait avoir la mise à jour ; il a été supprimé.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>Le fichier téléchargé n’est pas signé par l’éditeur de %1 ; il a été supprimé.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>Il n’y a pas assez de place pour la mise à jour dans le dossier temporaire.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Impossible d’écrire la mise à jour dans le dossier temporaire.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>Aucun programme de ce système n’ouvre le paquet de la mise à jour.</translation>
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
        <translation>Sélectionner un volume</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Aucun volume sélectionné</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Volumes montés</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Vérifier la capacité…</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Débit soutenu : le débit médian du dernier tiers du test, auquel une longue copie se stabilise ; pic et minimum sont le dixième de seconde le plus rapide et le plus lent.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Fait passer les données hors de la mémoire du système, afin de mesurer le disque et non le cache.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Écrit un grand fichier du début à la fin et vide les tampons sur le disque, comme le fait une longue copie vers ce volume.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Lit un grand fichier du début à la fin, comme le fait une longue copie depuis ce volume.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Lit des blocs à des endroits dispersés du fichier, un à la fois comme la plupart des programmes : plusieurs à la fois mesureraient la file d’attente du disque et non le temps d’attente ; les IOPS sont le nombre de telles opérations par seconde.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Écrit des blocs à des endroits dispersés du fichier, un à la fois comme la plupart des programmes : plusieurs à la fois mesureraient la file d’attente du disque et non le temps d’attente ; les IOPS sont le nombre de telles opérations par seconde.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Crée, recherche, renomme et supprime des fichiers vides ; la valeur indique combien il en a été créé par seconde.</translation>
    </message>
</context>
</TS>
