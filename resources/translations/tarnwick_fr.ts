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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Espace insuffisant&#xa0;: il faut %1, seuls %2 sont libres.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>Erreur d’E/S&#xa0;: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Impossible d’y écrire. Le volume est peut-être en lecture seule, ou le dossier ne le permet pas.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>Le fichier de test est trop petit pour la taille du bloc aléatoire.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Écriture séquentielle</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Lecture séquentielle</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lecture aléatoire</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Écriture aléatoire</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Opérations sur les fichiers</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>fichiers/s</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>pire %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Le dossier a été supprimé ou son volume débranché pendant la mesure.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Le volume a été débranché, ou son serveur a disparu.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>Le disque a signalé une erreur, ou a été débranché pendant la mesure.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>Le volume ne peut être que lu&#xa0;: les systèmes passent dans ce mode lorsqu’ils y trouvent une erreur.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>Le volume s’est rempli pendant la mesure, ou votre quota sur ce volume est épuisé.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>Le système de fichiers, ou une limite de cette session, n’autorise pas les fichiers de cette taille.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>Les droits d’accès du dossier ont changé pendant la mesure, ou le système l’interdit à cet endroit.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>La mémoire ne suffit pas pour des blocs de cette taille.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Trop de fichiers sont ouverts en ce moment&#xa0;; fermez quelques programmes et réessayez.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>L’en-tête de la réponse est trop long</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Aucun proxy n’est utilisable</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>Impossible de charger libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Impossible d’envoyer le signalement depuis ce bac à sable, qui n’a pas de réseau.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <translation>Le volume est-il aussi grand qu’il l’annonce, et conserve-t-il ce qu’on lui confie&#xa0;?</translation>
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
        <translation>Rapide&#xa0;: échantillons seuls</translation>
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
        <translation>%1&#xa0;: %2</translation>
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
        <translation>%1&#xa0;: %2&#xa0;%</translation>
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
        <source>Capacity of the volume</source>
        <translation>Capacité du volume</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Ce qu’aucune vérification ne peut dire&#xa0;: si l’espace occupé par vos fichiers est sain, ce que le disque garde en réserve, et si un bloc réparé tiendra.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Ce système de fichiers ne réserve pas d’espace sans l’écrire&#xa0;; les échantillons n’ont donc pas pu être répartis. Le résultat ne dit rien de la taille du volume&#xa0;: lancez une vérification qui ne se limite pas à des échantillons.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Une vérification rapide n’écrit qu’à quelques endroits&#xa0;: ce qui se trouve entre eux n’a pas été examiné.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Une vérification rapide n’écrit qu’à quelques endroits. Elle décèle la plupart des fausses capacités en quelques secondes&#xa0;; ne rien trouver ne prouve rien.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>L’espace vérifié est moindre que prévu&#xa0;: le volume a été plein trop tôt. Il a peut-être perdu des données du système de fichiers lui-même.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>L’espace vérifié est moindre que prévu&#xa0;: d’autres programmes ont pu l’occuper.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Ce volume garde ses fichiers en mémoire&#xa0;: aucun disque n’a été vérifié.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Seuls %1&#xa0;% de ce qui a été lu venaient du disque. Vérifiez plus que ce que la mémoire de la machine peut contenir.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Le disque derrière ce volume n’est pas visible&#xa0;; ce qui a été restitué a donc pu venir d’un cache.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>Ce qui est écrit au-delà de sa taille réelle est perdu, ou détruit ce qui se trouve ailleurs sur ce volume. Copiez ce dont vous avez besoin, et ne lui faites pas confiance.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>La vérification a été arrêtée&#xa0;: on ne sait rien de ce qu’elle n’avait pas relu.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Ce système de fichiers ne restitue rien qui ne corresponde à ses sommes de contrôle&#xa0;: des données altérées ne peuvent pas y être lues.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Capacité de %1</translation>
    </message>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Ce système de fichiers ne peut pas répartir les échantillons&#xa0;: seuls %1 en un seul endroit ont été vérifiés, et ils contiennent ce qui a été écrit.</translation>
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
        <translation>Votre quota sur le volume était épuisé après %1 sur %2&#xa0;; ceux-ci contiennent ce qui a été écrit.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Le volume était plein après %1 sur %2&#xa0;; ceux-ci contiennent ce qui a été écrit.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Les %1 ont tous été restitués intacts, mais surtout depuis la mémoire&#xa0;: cela en dit peu sur le disque.</translation>
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
        <source>about %1</source>
        <translation>environ %1</translation>
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
        <source>In one place</source>
        <translation>En un seul endroit</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>La première lecture était correcte.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>À %1, %2&#xa0;: un bit était inversé.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>À %1, %2&#xa0;: %3 bit était inversé.</numerusform>
            <numerusform>À %1, %2&#xa0;: %3 bits étaient inversés.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>raison inconnue</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>À %1, %2&#xa0;: lecture impossible (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>À %1, %2&#xa0;: écriture impossible (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>À %1, %2&#xa0;: écriture ou lecture réussie au second essai seulement (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>À %1, %2&#xa0;: ce qui avait été écrit ailleurs a été restitué.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>À %1, %2&#xa0;: le bloc écrit à %3 a été restitué, encore et encore.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>À %1, %2&#xa0;: ce qui avait été écrit à %3 a été restitué.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>À %1, %2&#xa0;: des zéros ont été restitués.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>À %1, %2&#xa0;: quelque chose qui n’y a jamais été écrit a été restitué.</translation>
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
        <translation>Au second essai seulement</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lecture</translation>
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
        <translation>Utilisation&#xa0;: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Ouvre l’analyseur de vitesse des disques et de volumes, choisit le premier dossier et montre les fichiers de mesure (*.tarnwickrun).
  --check-capacity  passer à la vérification du volume de ce dossier
  --choose-folder   demander un dossier
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 n’est ni un dossier ni un fichier de mesure pouvant être ouvert.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Écriture au fil du temps</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Lecture au fil du temps</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>référence</translation>
    </message>
    <message>
        <source>%1, %2: %3 %4</source>
        <extracomment>%1 is what was measured, %2 the name of a run, %3 the figure, %4 its unit</extracomment>
        <translation>%1, %2&#xa0;: %3 %4</translation>
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
        <translation>Comparaison de mesures</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>%n mesure comparée</numerusform>
            <numerusform>%n mesures comparées</numerusform>
        </translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>Comparaison de %n mesure</numerusform>
            <numerusform>Comparaison de %n mesures</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Partager une image de la comparaison</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Écarts avec</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lecture aléatoire</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Écriture aléatoire</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. fichiers</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>op./s</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Test de remplissage</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>Test de %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>L/É %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>É %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>L %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>Aléat. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Sans cache</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>Avec cache</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>DialogsText</name>
    <message>
        <source>Working folder:</source>
        <translation>Dossier de travail&#xa0;:</translation>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Mesures Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>«&#xa0;%1&#xa0;» est endommagé ou n’est pas une mesure de Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni un dossier ni un fichier de mesure pouvant être ouvert.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» et %2 autre sont endommagés ou ne sont pas des mesures de Tarnwick.</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» et %2 autres sont endommagés ou ne sont pas des mesures de Tarnwick.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» et %2 autre ne sont ni des dossiers ni des fichiers de mesure pouvant être ouverts.</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» et %2 autres ne sont ni des dossiers ni des fichiers de mesure pouvant être ouverts.</numerusform>
        </translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Mesure&#xa0;: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>ne vient pas du disque</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Remplir le disque&#xa0;?</translation>
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
        <translation>Afficher dans le dossier&#xa0;: %1</translation>
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
        <translation>Vérifications précédentes</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Panne imminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Vérifié</translation>
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
        <translation>Avertissement critique</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Durée de vie utilisée</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Réserve disponible</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Seuil de la réserve</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Durée de fonctionnement</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Mises sous tension</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Cycles de parcage des têtes</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Arrêts brutaux</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Données écrites</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Données lues</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Commandes de lecture de l’hôte</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Commandes d’écriture de l’hôte</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Temps d’occupation du contrôleur</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Secteurs réalloués</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Secteurs en attente</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Secteurs non corrigibles</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Erreurs non corrigibles signalées</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Nouvelles tentatives de mise en rotation</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Erreurs CRC d’interface</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Erreurs de support</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Entrées du journal d’erreurs</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>État</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Disques</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Réserve sous le seuil</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Fiabilité dégradée</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Échec de la sauvegarde de la mémoire volatile</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 ans</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>Réponse de %1 disques sur %2</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>aucun périphérique ne se trouve derrière ce chemin</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>aucun disque ne se trouve derrière %1</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 n’est pas un périphérique bloc</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 n’indique pas s’il est en veille et n’a donc pas été interrogé</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 est en veille et n’a pas été interrogé</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 n’a pas de S.M.A.R.T., ou il est désactivé</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 n’a pas d’interface S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 ne transmet pas les commandes S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 ne fournit pas son journal de santé NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 ne peut être interrogé que par un administrateur</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 est hors de portée de ce processus</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 ne répond pas</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 ne répond pas pour %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 ne lit pas l’état des disques NVMe (la version 2.10 le fait)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 n’a pas de valeurs d’état pour %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 n’a pas de verdict sur l’état de %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 ne connaît aucun disque derrière %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>S.M.A.R.T. ATA de %1, qui a donné son verdict sans valeurs</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>S.M.A.R.T. ATA de %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>Journal de santé NVMe de %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 pour %1, lu il y a %2 min</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 pour %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Two sentences: how many disks answered, and why others did not</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>Two sentences, the first on one disk and the second on another</extracomment>
        <translation>%1&#xa0;; %2</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>Two sentences: why a disk gives no figures itself, and why the system&apos;s service gives none</extracomment>
        <translation>%1, et %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 jour</numerusform>
            <numerusform>%1 jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Panne imminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Vérifié</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Supprimer cette mesure</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Arrêt, suppression des fichiers</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>La vérification n’a pas pu être rendue en JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>Sensible à la casse</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Conserve la casse</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Fichiers creux</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Liens physiques</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Liens symboliques</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Attributs étendus</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Flux nommés</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Listes de contrôle d’accès</translation>
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
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Journal actif</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Scellé</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Chiffré</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Monté sur</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Taille de bloc</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Transfert optimal</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Nom le plus long</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Chemin le plus long</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Liens au maximum</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Raccordé par</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(attention)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>pas de valeurs S.M.A.R.T.&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>%1, fourni avec la fenêtre, n’a pas pu être lancé</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 est un dossier</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 existe et ne contient pas de mesures&#xa0;; --force le remplacerait</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Une valeur de cette mesure dépasse ce qu’un fichier peut contenir.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 n’a pas pu être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>L’historique n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Le résultat n’a pas pu être écrit</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 n’est pas un dossier</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 ne se trouve pas dans ce bac à sable, qui n’a que certains dossiers de la machine</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 appartient au bac à sable lui-même&#xa0;; le dossier de ce nom de la machine lui est caché.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>Des fichiers d’une autre mesure dans ce dossier sont en cours d’utilisation et n’ont pas été supprimés.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1&#xa0;: le vidage des tampons sur le disque a échoué (%2)&#xa0;; une partie de ce qui a été écrit n’y est peut-être pas.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Préparation&#xa0;: le vidage des tampons sur le disque a échoué (%1)&#xa0;; une partie de ce qui a été écrit n’y est peut-être pas.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Le fichier de mesure n’a pas pu être écrit dans votre dossier temporaire.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>La mesure n’a pas pu être ajoutée à l’historique.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 est plus grand que ne peut l’être un fichier de mesure (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>%1 n’a pas pu être lu</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>l’entrée standard est plus grande que ne peut l’être un fichier de mesure (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>l’entrée standard n’est pas un fichier de mesure&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 n’est pas un fichier de mesure&#xa0;: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>L’image n’a pas pu être dessinée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>L’image n’a pas pu être dessinée, ou n’a pas pu être écrite dans votre dossier temporaire.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>La dessiner en couleurs sombres</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Un fichier de mesure est ce qu’écrit «&#xa0;run --handoff&#xa0;», pour une mesure. L’image est un fichier PNG de 1616 pixels de
large, à marge transparente&#xa0;; son chemin est affiché. Aucun écran n’est nécessaire. Une image de même titre remplace
la précédente&#xa0;; elle reste jusqu’à la fin de votre session, ou jusqu’à ce que le système vide son dossier temporaire.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Code de retour&#xa0;: 0 terminé, 1 un fichier n’a pas pu être lu ou l’image créée, 2 mauvaise utilisation.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Dessiner une image d’une mesure à partager, ou de plusieurs comparées</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Quantité à écrire et relire (par défaut&#xa0;: tout l’espace libre)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Espace qui reste libre dans tous les cas (par défaut&#xa0;: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Échantillons répartis sur l’étendue, en quelques secondes&#xa0;: décèle
une fausse capacité, et ne prouve rien si aucune n’est trouvée</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Tout relire une fois de plus, S secondes plus tard</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Afficher un objet JSON&#xa0;: le verdict, la phrase et tout ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Écrit dans un dossier caché de FOLDER des fichiers dont chaque bloc diffère, les relit en contournant le cache du système, compare le
tout et les supprime, même après Ctrl+C. Aucun de vos fichiers n’est touché&#xa0;; mais sur un périphérique à fausse capacité, toute
écriture au-delà de sa taille réelle peut détruire ce qui s’y trouve, comme n’importe quel usage. --quick n’écrit que des
échantillons. Les fichiers d’une vérification interrompue de force sont supprimés par la prochaine mesure ou vérification dans FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES&#xa0;: de simples chiffres, ou des chiffres suivis de K, M, G, T (KiB, MiB, GiB, TiB&#xa0;: par pas de 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Code de retour&#xa0;: 0 rien d’anormal, 1 échec, 2 mauvaise utilisation, 3 défauts
trouvés, 130 arrêt par un signal&#xa0;; ce qui avait été trouvé jusque-là est affiché.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Vérifier si un volume est aussi grand qu’il l’annonce et conserve ce qu’on lui confie</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>Sous forme de text (par défaut), markdown, csv ou json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Permettre à --output de remplacer un fichier au contenu quelconque</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Afficher les informations sous forme d’un objet JSON</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Afficher la liste sous forme d’un tableau JSON</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Rien n’est écrit nulle part. Ce que le système n’indique pas
s’affiche «&#xa0;--&#xa0;» ou «&#xa0;inconnu&#xa0;», et ne figure pas dans l’objet JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Chaque système de fichiers figure une seule fois, à son point de montage le plus court. Ce que le système, ses
paquets et ses conteneurs montent pour eux-mêmes est omis. Un serveur qui ne répond pas à temps n’a pas de capacité.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>Le disque est seulement consulté&#xa0;: s’il est en veille, il n’est pas réveillé, et rien n’y
est activé. D’où vient son état de santé, ou pourquoi il n’y en a pas, «&#xa0;facts&#xa0;» l’indique.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Montrer ce qui contient FOLDER&#xa0;: volume, système de fichiers, disque et son état de santé</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Lister les volumes montés</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Afficher l’état de santé du disque qui contient FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Utilisation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Afficher ce texte</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick dans un terminal&#xa0;: la vitesse d’un disque, mesurée sur lui sans rien y laisser.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Afficher ce texte, ou, après une commande, les options de celle-ci</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Afficher la version</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>Le fichier qu’écrit «&#xa0;export&#xa0;»</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Permettre à «&#xa0;delete&#xa0;» de supprimer toutes les mesures</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION est l’une des suivantes</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>une ligne par mesure, la plus récente d’abord, commençant par son nom (par défaut)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>afficher des mesures comme le fait «&#xa0;show&#xa0;», au format donné par --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>écrire des mesures dans le FILE de --output, au format de --format ou du
nom de FILE&#xa0;: .csv, .json, .md, .txt, ou .tarnwickrun pour une seule mesure</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>supprimer des mesures, sans confirmation et définitivement</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>Un RUN se nomme comme dans la liste, ou par les quatre premiers caractères au moins de son identifiant. Sans RUN, il s’agit
de toutes les mesures&#xa0;; «&#xa0;delete&#xa0;» exige alors --all. Une fenêtre ouverte se met à jour dès que vous y revenez. --output ne
remplace un fichier existant que s’il est vide ou contient des mesures&#xa0;; avec --force, tout autre fichier aussi.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Code de retour&#xa0;: 0 terminé, 1 mesure inexistante ou échec, 2 mauvaise utilisation.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Lister, montrer, exporter ou supprimer les mesures que garde la fenêtre</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES&#xa0;: de simples chiffres, ou des chiffres suivis de K, M, G, T (KiB, MiB, GiB, TiB&#xa0;: par pas de 1024). Les blocs sont
arrondis à des pages entières de 4096. Les valeurs par défaut sont celles de la fenêtre, afin que ses valeurs et celles-ci
soient comparables, sauf pour les blocs des tests séquentiels&#xa0;: la fenêtre prend le «&#xa0;Transfert optimal&#xa0;» qu’affiche «&#xa0;facts&#xa0;».</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Tout est écrit dans un dossier caché de FOLDER et supprimé à la fin, même après Ctrl+C. Ce qu’une mesure interrompue de force a laissé
dans FOLDER est supprimé avant le démarrage&#xa0;; les fichiers encore utilisés restent, après une seconde d’attente.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>Les fichiers de --handoff et --card restent jusqu’à la fin de votre session, ou jusqu’à ce que le système vide
son dossier temporaire. --output ne remplace un fichier existant que s’il est vide ou contient des mesures (un
fichier de mesure, ou ce que «&#xa0;show --format&#xa0;» et «&#xa0;history export&#xa0;» écrivent en json ou csv)&#xa0;; avec --force,
tout autre fichier aussi. Une fenêtre ouverte montre une mesure ajoutée par --keep dès que vous y revenez. Si
quelque chose ne peut pas être écrit, les valeurs sont tout de même affichées et la mesure compte comme un échec.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Code de retour&#xa0;: 0 terminé, 1 échec, 2 mauvaise utilisation, 130 arrêt par un signal.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Mesurer le système de fichiers qui contient FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Tests à exécuter, toujours dans cet ordre&#xa0;: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (par défaut&#xa0;: tous)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Taille du fichier de données, ou fill pour remplir le disque (par défaut&#xa0;: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>Ce que --size fill laisse libre (par défaut&#xa0;: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Octets par appel, écriture séquentielle (par défaut&#xa0;: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Octets par appel, lecture séquentielle (par défaut&#xa0;: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Octets par opération aléatoire (par défaut&#xa0;: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Opérations dans chaque test aléatoire (par défaut&#xa0;: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Fichiers dans le test des opérations sur les fichiers (par défaut&#xa0;: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Laisser le système mettre le fichier de données en cache, comme les programmes ordinaires</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Intervalle minimal entre deux points de mesure, en secondes (par défaut&#xa0;: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Afficher un objet JSON&#xa0;: le plan, chaque valeur, chaque point de mesure,
date, dossier, volume, système de fichiers, disque, noyau, et sous
«&#xa0;evidence&#xa0;» et «&#xa0;remarks&#xa0;» ce qui a été observé et ce que cela signifie</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Y écrire un fichier de mesure, pour la fenêtre, pour «&#xa0;show&#xa0;» et pour d’autres</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Ajouter la mesure à l’historique de la fenêtre</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Écrire un fichier de mesure pour la fenêtre et pour «&#xa0;show&#xa0;», et afficher son
chemin en dernière ligne&#xa0;; avec --json&#xa0;: comme «&#xa0;handoffFile&#xa0;» dans l’objet</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Dessiner une image de la mesure à partager, en couleurs claires (light) ou sombres
(dark), et afficher son chemin en dernière ligne&#xa0;; avec --json&#xa0;: comme «&#xa0;cardFile&#xa0;»</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Un fichier de mesure est ce qu’écrivent «&#xa0;run --handoff&#xa0;» et «&#xa0;run --output&#xa0;», pour une mesure. L’historique de
la fenêtre (history.json) et la sortie de «&#xa0;show --format json&#xa0;» en ont plusieurs. «&#xa0;-&#xa0;» est l’entrée standard.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>En texte, des barres comparent les valeurs de plusieurs mesures&#xa0;: la plus grande de chaque sorte occupe toute la largeur, et «&#xa0;--&#xa0;» figure
là où une mesure n’en a pas. Les lignes tiennent dans le terminal, ou dans 80 colonnes. Un tableau Markdown convient aux forums. CSV
a une ligne par mesure, avec des nombres simples pour tableurs et scripts. JSON est une liste des contenus de fichiers de mesure.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Un fichier qui ne peut pas être montré est signalé par une ligne sur l’erreur standard&#xa0;; les autres sont montrés.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Code de retour&#xa0;: 0 tous ont été montrés, 1 pas tous, 2 mauvaise utilisation.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Montrer des mesures à partir de leurs fichiers, et plusieurs côte à côte</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>il n’y a pas de mesure %1 dans l’historique</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 désigne plusieurs mesures</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>encore %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Arrêt, suppression des fichiers de test</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Préparation du fichier de test, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Démarrage, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Soutenu</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Pic</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Opérations</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Pire</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Consulter</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>il manque un RUNFILE à dessiner</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 vaut un an au plus</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>l’option %1 n’existe pas</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 n’accepte pas de valeur</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 exige une valeur&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 ne va qu’avec %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 exige un nombre entier de %2 à %3, et non %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 exige un nombre d’octets, comme 4096, 64K ou 5GiB, de %2 à %3, et non %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 exige un nombre de secondes, 0 ou plus, et non %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>il manque un FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>un seul FOLDER à la fois</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 est text, markdown, csv ou json, et non %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 exige le nom d’un fichier</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 n’accepte pas d’opérande</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 exige %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>un fichier de mesure contient une mesure, et non %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>%1 est nécessaire si le nom de FILE ne finit pas par .tarnwickrun, .csv, .json, .md ou .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 exige soit RUN, soit %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 ne va qu’avec %2 et %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 connaît list, show, export et delete, et non %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>il manque une commande&#xa0;; voir %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>la commande %1 n’existe pas&#xa0;; voir %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>il manque un FOLDER à mesurer</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>il manque un FOLDER à vérifier</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>un seul FOLDER à la fois, %1 est de trop</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>le nom de FOLDER est vide</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1&#xa0;: le test %2 n’existe pas, seulement %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 est light ou dark, et non %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>il manque un FILE à montrer</translation>
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
        <translation>Ajustez les tests et les réglages à gauche, puis cliquez sur «&#xa0;Lancer la mesure&#xa0;».</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Avertissement</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Tout l’espace libre</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <translation>Tout l’espace libre, environ %1, est écrit, relu, comparé et libéré. Sur un grand volume, cela prend des heures&#xa0;; pendant ce temps, le volume est plein pour les autres programmes. Vos fichiers ne sont pas touchés.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1&#xa0;% de la vérification</translation>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1 à %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
        <translation>Impossible d’enregistrer le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Enregistré sous «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <extracomment>%1 is the name of a test, %2 how much of it is done</extracomment>
        <translation>%1&#xa0;: %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <extracomment>%1 is a rate, %2 its unit, %3 how much is done of how much</extracomment>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>Disque %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>terminé</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>en cours</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>à venir</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 what it does (done, running, to come), %3 its rate</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1&#xa0;: %2, %3</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>Encore quelques secondes</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>Encore quelques secondes pour ce test</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Encore environ %n s</numerusform>
            <numerusform>Encore environ %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>Encore environ %n s pour ce test</numerusform>
            <numerusform>Encore environ %n s pour ce test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Encore environ %n min</numerusform>
            <numerusform>Encore environ %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>Encore environ %n min pour ce test</numerusform>
            <numerusform>Encore environ %n min pour ce test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Encore environ %n h</numerusform>
            <numerusform>Encore environ %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>Encore environ %n h pour ce test</numerusform>
            <numerusform>Encore environ %n h pour ce test</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 sur %2 opération</numerusform>
            <numerusform>%1 sur %2 opérations</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Préparation…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Effacer</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Comparer %n</numerusform>
            <numerusform>Comparer %n</numerusform>
        </translation>
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
        <translation>Supprimer toutes les mesures enregistrées&#xa0;?</translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>Pendant le test, le disque a reçu au plus %1 de ce qui a été écrit.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>Pendant le test, le disque a reçu %1 de ce qui a été écrit.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>Le disque a fourni au plus %1 de ce qui a été lu.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>Le disque a fourni %1 de ce qui a été lu.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Une partie de ce qui a été écrit n’a pas pu être transférée des tampons sur le disque&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>Le fichier de test n’a pas pu être transféré des tampons sur le disque&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 pour les premiers %2, puis %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>Le disque a atteint %1 après %2 (limite %3), et dès lors le débit a été inférieur de %4.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Une pause de plus de 1 s&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 pause de plus de 1 s, la plus longue %2.</numerusform>
            <numerusform>%1 pauses de plus de 1 s, la plus longue %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>D’autres programmes ont transféré %1 sur le même disque pendant le test.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>La liaison %1 du disque fonctionne à %2&#xa0;; le disque pourrait atteindre %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>La partition commence à %1 du début d’un bloc physique de %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>Seuls %1 du volume étaient libres.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Les %1 du test tiennent peut-être dans un cache de %2.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>La machine fonctionnait sur batterie.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>Le processeur était réglé pour économiser l’énergie.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>La machine fonctionnait sur batterie, son processeur réglé pour économiser l’énergie.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>Le système de fichiers écrit les modifications à de nouveaux endroits et calcule des sommes de contrôle des données.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>Le système de fichiers écrit les modifications à de nouveaux endroits.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Activez «&#xa0;Contourner le cache&#xa0;». Si c’est déjà le cas, choisissez une taille supérieure à la mémoire de la machine.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Consultez l’état S.M.A.R.T. du disque et le journal du système avant de lui confier des données.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Des données sont passées par un cache alors que le système devait le contourner.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Choisissez une taille supérieure à la mémoire de la machine, ou testez le disque sous-jacent à travers un autre système de fichiers.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Pour des transferts plus volumineux, attendez-vous au débit le plus bas.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Donnez au disque plus d’air ou un dissipateur, et relancez la mesure une fois qu’il a refroidi.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Relancez la mesure. Si les pauses reviennent, examinez l’état S.M.A.R.T. du disque et son câble.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Relancez la mesure quand rien d’autre n’utilise le disque.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Essayez un autre port, emplacement ou câble.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Recréez la partition en la faisant commencer à un multiple de 1 MiB. Cela l’efface.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Libérez de l’espace&#xa0;: bien des disques et systèmes de fichiers ralentissent une fois pleins.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Choisissez une taille plus grande, et activez «&#xa0;Contourner le cache&#xa0;».</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Relancez la mesure sur secteur, sans économie d’énergie.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>Le disque derrière ce volume n’est pas visible&#xa0;; rien ne montre donc ce qu’il a fait lui-même.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Ce volume garde ses fichiers en mémoire&#xa0;; aucun disque n’a été mesuré.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Choisissez un dossier sur un disque.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Ce volume est un fichier sur un autre volume.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Pour mesurer cet autre volume lui-même, choisissez-y un dossier.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>Le disque est celui d’une machine virtuelle, dont l’hôte le met peut-être en cache.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>Le système de fichiers compresse. Les données du test ne se compressent pas, d’autres fichiers peuvent donc être plus rapides.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>Le système de fichiers écrit les données deux fois, d’abord dans son journal.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Ce dossier a été atteint par le portail du bureau, un programme qui entre dans les valeurs.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Autorisez le bac à sable à utiliser le dossier lui-même, puis choisissez-le de nouveau.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Non valide</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Prudence</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>À noter</translation>
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
        <translation>Que voudriez-vous que %1 fasse&#xa0;?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Que s’est-il passé&#xa0;? Étapes pour reproduire le problème, et ce que vous attendiez.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>Adresse électronique – facultative, si vous souhaitez une réponse</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Seront joints&#xa0;: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick – Comparaison</translation>
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
        <translation>Signaler sur le Web&#xa0;:</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Zone ombrée&#xa0;: le dernier tiers de chaque test, dont la médiane est le débit soutenu. Triangles&#xa0;: débit de pic et débit minimal.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
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
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (non valide)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick – %n mesure</numerusform>
            <numerusform>Ondel Tarnwick – %n mesures</numerusform>
        </translation>
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
        <translation>Impossible d’enregistrer le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Enregistré sous «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Ne vient pas du disque&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Ne viennent pas du disque&#xa0;: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Lecture aléatoire %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Écriture aléatoire %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Opérations sur les fichiers</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Lecture/Écriture</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>Contourné</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>Avec cache</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Une vérification de capacité est en cours</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Une mesure est en cours</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>écriture %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>lecture %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Échec de la mesure</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Mesure terminée</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Échec de la vérification de capacité</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Vérification de capacité terminée</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lecture aléatoire</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Écriture aléatoire</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. fichiers</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>pic %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>min %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, pic</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, minimum</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, latence</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>À propos de ces valeurs</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>Serveur %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Serveur réseau</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Disque externe</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Volume réseau</translation>
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
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  (attention)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>État</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Rapport S.M.A.R.T. d’Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <extracomment>Button: opens a menu</extracomment>
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
    <name>SharedImageText</name>
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
        <translation>Impossible d’enregistrer l’image&#xa0;: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Enregistré sous «&#xa0;%1&#xa0;»</translation>
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
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>TargetFactsText</name>
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
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 externe</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 interne</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 amovible</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 réseau</translation>
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
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 caractère</numerusform>
            <numerusform>%1 caractères</numerusform>
        </translation>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Inconnu&#xa0;: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Pas de valeurs S.M.A.R.T.&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Choisissez un dossier sur le volume à tester (un dossier de travail temporaire y est créé puis supprimé).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Sélectionner</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>la fenêtre déjà ouverte ne répond pas&#xa0;; elle fera ce qui a été demandé dès qu’elle le pourra.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>la fenêtre déjà ouverte (processus %1) ne répond pas&#xa0;; elle fera ce qui a été demandé dès qu’elle le pourra.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>Comme le bureau</translation>
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
        <translation>Recherche une nouvelle version environ une fois par jour et demande avant de l’installer. Si cette option est désactivée, Tarnwick ne cherche que lorsque vous choisissez «&#xa0;Rechercher des mises à jour&#xa0;».</translation>
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
        <translation>Langue</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Langue de la fenêtre</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>S’applique à la fenêtre au prochain démarrage de Tarnwick.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Images partagées en anglais</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Si cette option est désactivée, leurs textes sont dans la langue de la fenêtre.</translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>Soutenir Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick est gratuit et développé par une seule personne. Votre soutien couvre l’hébergement et le temps nécessaire pour le faire vivre.</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1&#xa0;: de %2 à %3 %6 en %4, dernier %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Pas encore de valeurs.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximiser</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>%n mesure supprimée</numerusform>
            <numerusform>%n mesures supprimées</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Mesure supprimée</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2&#xa0;%</translation>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Rechercher automatiquement les mises à jour&#xa0;?</translation>
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
        <translation>Le serveur de mises à jour de cette version n’est pas accessible par une connexion sécurisée&#xa0;; rien ne lui a donc été demandé.</translation>
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
        <translation>Le fichier téléchargé n’a pas la longueur que devrait avoir la mise à jour&#xa0;; il a été supprimé.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>Le fichier téléchargé n’est pas signé par l’éditeur de %1&#xa0;; il a été supprimé.</translation>
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
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Interne</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Externe</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Amovible</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Racine</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Remplir le disque</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Débit soutenu&#xa0;: le débit médian du dernier tiers du test, auquel une longue copie se stabilise&#xa0;; pic et minimum sont le dixième de seconde le plus rapide et le plus lent.</translation>
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
        <translation>Lit des blocs à des endroits dispersés du fichier, un à la fois comme la plupart des programmes&#xa0;: en lire plusieurs à la fois mesurerait la file d’attente du disque et non le temps d’attente&#xa0;; les IOPS sont le nombre de telles opérations par seconde.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Écrit des blocs à des endroits dispersés du fichier, un à la fois comme la plupart des programmes&#xa0;: en écrire plusieurs à la fois mesurerait la file d’attente du disque et non le temps d’attente&#xa0;; les IOPS sont le nombre de telles opérations par seconde.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Crée, consulte, renomme et supprime des fichiers vides&#xa0;; la valeur indique combien il en a été créé par seconde.</translation>
    </message>
</context>
</TS>
