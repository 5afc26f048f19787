<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Apoyar %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Agradecimientos</translation>
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
        <translation>Más</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>No disponible en este momento</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>No disponible en este momento</translation>
    </message>
</context>
<context>
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Espacio insuficiente: se necesitan %1 y solo hay %2 libres.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>Error de E/S: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>No se pudo escribir ahí. Puede que el volumen sea de solo lectura o que la carpeta no lo permita.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>El archivo de prueba es demasiado pequeño para el tamaño de bloque aleatorio.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Escritura secuencial</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Lectura secuencial</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lectura aleatoria</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Escritura aleatoria</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operaciones de archivos</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>archivos/s</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>peor %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Durante la medición se eliminó la carpeta o se desconectó su volumen.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Se desconectó el volumen, o su servidor ya no está.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>La unidad notificó un error o se desconectó durante la medición.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>El volumen solo se puede leer: los sistemas pasan a ese modo cuando encuentran un error en él.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>El volumen se llenó durante la medición, o se agotó su cuota en él.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>El sistema de archivos, o un límite de esta sesión, no permite archivos de este tamaño.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>Los permisos de la carpeta cambiaron durante la medición, o el sistema no lo permite ahí.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>No hay memoria suficiente para bloques de este tamaño.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Hay demasiados archivos abiertos en este momento; cierre algunos programas e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
        <translation>pico %1
mín. %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>pico %1 · mín. %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>No se pudo contactar con el servidor. Compruebe su conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The answer&apos;s head is too long</source>
        <translation>El encabezado de la respuesta es demasiado largo</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>No se puede usar ningún proxy</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>No se puede cargar libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>No se puede enviar la notificación desde este entorno aislado, que no tiene red.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
        <translation>El servidor rechazó la notificación (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Funciones del volumen</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>¿Es el volumen tan grande como dice, y conserva lo que se le confía?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Espacio por comprobar</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Segunda relectura</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Rápida: solo muestras</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Iniciar comprobación</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Guardar informe…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Copiar el informe como texto</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Nueva comprobación</translation>
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
        <translation>Detener</translation>
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
        <translation>Capacidad de %1</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>Capacidad del volumen</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Volver a las mediciones</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Mapa del espacio comprobado</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Velocidad a lo largo del espacio, hasta %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lectura</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Lo que ninguna comprobación puede saber: si el espacio que ocupan sus archivos está en buen estado, qué guarda la unidad en reserva y si un bloque reparado durará.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Este sistema de archivos no reserva espacio sin escribirlo, así que no se pudieron repartir las muestras. El resultado no dice nada del tamaño del volumen: realice una comprobación que no sea rápida.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Una comprobación rápida escribe solo en unos pocos lugares: lo que hay entre ellos no se examinó.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Una comprobación rápida escribe solo en unos pocos lugares. Detecta la mayoría de las capacidades falsas en segundos; no encontrar nada no demuestra nada.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>Se comprobó menos de lo previsto: el volumen se llenó demasiado pronto. Puede que haya perdido datos del propio sistema de archivos.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Se comprobó menos de lo previsto: puede que otros programas hayan ocupado el espacio.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Este volumen guarda sus archivos en la memoria: no se comprobó ningún disco.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Solo el %1&#xa0;% de lo leído procedía del disco. Compruebe más de lo que cabe en la memoria del equipo.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>El disco que hay detrás de este volumen no es visible, por lo que lo devuelto puede proceder de una caché.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>Lo que se escribe más allá de su tamaño real se pierde o destruye lo que hay en otro lugar del volumen. Copie lo que necesite de él y no se fíe de él.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>La comprobación se detuvo: de lo que no había releído no se sabe nada.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Este sistema de archivos no devuelve nada que no coincida con sus sumas de comprobación: en él no se pueden leer datos alterados.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Capacidad de %1</translation>
    </message>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Este volumen conserva solo los primeros %1 de lo que se escribe en él.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Este volumen declara %1, pero conserva solo los primeros %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Este volumen declara %1, pero conserva solo los primeros %2, aproximadamente.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Un bloque en %1 estaba alterado al releerlo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 bloque en %2 estaba alterado al releerlo.</numerusform>
            <numerusform>%1 bloques en %2 estaban alterados al releerlos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 bloque estaba alterado al releerlo, el primero en %2.</numerusform>
            <numerusform>%1 bloques estaban alterados al releerlos, el primero en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 de %2 estaban alterados al releerlos, el primer bloque en %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Un bloque en %1 era correcto al principio y se alteró después.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 bloque en %2 era correcto al principio y se alteró después.</numerusform>
            <numerusform>%1 bloques en %2 eran correctos al principio y se alteraron después.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 bloque era correcto al principio y se alteró después, el primero en %2.</numerusform>
            <numerusform>%1 bloques eran correctos al principio y se alteraron después, el primero en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 de %2 eran correctos al principio y se alteraron después, el primer bloque en %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>No se pudo leer un bloque en %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>No se pudo leer %1 bloque en %2.</numerusform>
            <numerusform>No se pudieron leer %1 bloques en %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>No se pudo leer %1 bloque, el primero en %2.</numerusform>
            <numerusform>No se pudieron leer %1 bloques, el primero en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>No se pudieron leer %1 de %2, el primer bloque en %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>No se pudo escribir un bloque en %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>No se pudo escribir %1 bloque en %2.</numerusform>
            <numerusform>No se pudieron escribir %1 bloques en %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>No se pudo escribir %1 bloque, el primero en %2.</numerusform>
            <numerusform>No se pudieron escribir %1 bloques, el primero en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Además de %2 escritos, no se pudieron escribir %1, el primer bloque en %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Un bloque en %1 solo se pudo escribir o leer al segundo intento.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%1 bloque en %2 solo se pudo escribir o leer al segundo intento.</numerusform>
            <numerusform>%1 bloques en %2 solo se pudieron escribir o leer al segundo intento.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 bloque solo se pudo escribir o leer al segundo intento, el primero en %2.</numerusform>
            <numerusform>%1 bloques solo se pudieron escribir o leer al segundo intento, el primero en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%1 de %2 solo se pudieron escribir o leer al segundo intento, el primer bloque en %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Un bloque en %1 no se devolvió tal como se escribió.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%1 bloque en %2 no se devolvió tal como se escribió.</numerusform>
            <numerusform>%1 bloques en %2 no se devolvieron tal como se escribieron.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 bloque no se devolvió tal como se escribió, el primero en %2.</numerusform>
            <numerusform>%1 bloques no se devolvieron tal como se escribieron, el primero en %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%1 de %2 no se devolvieron tal como se escribieron, el primer bloque en %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>Antes de detenerse, la comprobación encontró bloques que no se devolvieron tal como se escribieron, el primero en %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>Se pudo escribir en el volumen hasta %1 de %2, y este rechazó todo lo demás.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>La comprobación se detuvo antes de releer nada.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>La comprobación se detuvo cuando %1 de %2 se habían devuelto intactos.</translation>
    </message>
    <message>
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Este sistema de archivos no puede repartir las muestras: solo se comprobaron %1 en un único lugar, y contienen lo que se escribió.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Las muestras repartidas por %1 contienen lo que se escribió, lo que no demuestra nada.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Las muestras repartidas por %1 de espacio libre contienen lo que se escribió, lo que no demuestra nada.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Su cuota en el volumen se agotó después de %1 de %2; esa parte contiene lo que se escribió.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>El volumen se llenó después de %1 de %2; esa parte contiene lo que se escribió.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Todos los %1 se devolvieron intactos, pero en su mayoría desde la memoria: eso dice poco sobre el disco.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Todos los %1 contienen lo que se escribió.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Todos los %1 de espacio libre contienen lo que se escribió.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Tamaño declarado</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>unos %1</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Espacio por comprobar</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 de espacio libre</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, una cada %2</translation>
    </message>
    <message>
        <source>In one place</source>
        <translation>En un único lugar</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>En la primera lectura era correcto.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>En %1, %2: un bit estaba invertido.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>En %1, %2: %3 bit estaba invertido.</numerusform>
            <numerusform>En %1, %2: %3 bits estaban invertidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>motivo desconocido</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>En %1, %2: no se pudo leer (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>En %1, %2: no se pudo escribir (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>En %1, %2: solo se pudo escribir o leer al segundo intento (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>En %1, %2: se devolvió lo que se había escrito en otro lugar.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>En %1, %2: se devolvió, una y otra vez, el bloque que se había escrito en %3.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>En %1, %2: se devolvió lo que se había escrito en %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>En %1, %2: se devolvieron ceros.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>En %1, %2: se devolvió algo que nunca se escribió ahí.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Escrito</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Releído</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>Releído tras %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Intacto</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterado</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>No se pudo leer</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>No se pudo escribir</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Solo al segundo intento</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Leído del disco</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>Y en un lugar más.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>Y en %1 lugar más.</numerusform>
            <numerusform>Y en %1 lugares más.</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparando…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Escritura de muestras</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Relectura</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Espera</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Segunda relectura</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>No escrito</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Ilegible</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>No escribible</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lectura</translation>
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
Abre el analizador de discos y volúmenes, elige la primera carpeta y muestra los archivos de medición (*.tarnwickrun).
  --check-capacity  pasar a la comprobación del volumen de esa carpeta
  --choose-folder   pedir que se elija una carpeta
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 no es una carpeta ni un archivo de medición que se pueda abrir.</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Comparar con la última medición de este volumen</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Escritura en el tiempo</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Lectura en el tiempo</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>referencia</translation>
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
        <translation>Comparación de mediciones</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>%n medición comparada</numerusform>
            <numerusform>%n mediciones comparadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Escanee para probarlo</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>No es del disco</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>Comparación de %n medición</numerusform>
            <numerusform>Comparación de %n mediciones</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Compartir una imagen de la comparación</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Diferencias respecto a</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lectura aleatoria</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Escritura aleatoria</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. archivos</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>op/s</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Prueba de llenado</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>Prueba de %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>L/E %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>E %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>L %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>Aleat. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Sin caché</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>Con caché</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>Completada</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Adjuntar diagnóstico</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Actividad reciente de esta sesión. Los nombres de archivos, servidores y cuentas se sustituyen por identificadores anónimos antes de registrar nada.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Ver…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
    <message>
        <source>Working folder:</source>
        <translation>Carpeta de trabajo:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>temporal, se crea ahí y luego se elimina</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Mediciones de Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>«%1» está dañado o no es una medición de Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>«%1» no es una carpeta ni un archivo de medición que se pueda abrir.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>«%1» y %2 más están dañados o no son mediciones de Tarnwick.</numerusform>
            <numerusform>«%1» y %2 más están dañados o no son mediciones de Tarnwick.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>«%1» y %2 más no son carpetas ni archivos de medición que se puedan abrir.</numerusform>
            <numerusform>«%1» y %2 más no son carpetas ni archivos de medición que se puedan abrir.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Ocultar pruebas y ajustes</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Mostrar pruebas y ajustes</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Cambiar el nombre de este informe. El nombre también aparece en las imágenes que comparta.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Título del informe</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Compartir una imagen del informe</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Eliminar medición</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Contraer</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>No es del disco</translation>
    </message>
</context>
<context>
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Medición: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>no es del disco</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>¿Llenar el disco?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>La prueba escribe hasta que quedan %1 libres y luego elimina todo lo escrito. En una unidad grande esto tarda mucho, y a todo lo demás que necesite espacio en ella le faltará hasta que termine la prueba.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Llenar disco</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Mostrar en la carpeta: %1</translation>
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
        <translation>Comprobaciones anteriores</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Fallo inminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Verificado</translation>
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
        <translation>Advertencia crítica</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Vida útil consumida</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Reserva disponible</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Umbral de la reserva</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Tiempo encendido</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Ciclos de encendido</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Ciclos de carga de los cabezales</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Apagados no seguros</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Datos escritos</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Datos leídos</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Órdenes de lectura del host</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Órdenes de escritura del host</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Tiempo de ocupación del controlador</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Sectores reasignados</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Sectores pendientes</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Sectores incorregibles</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Errores incorregibles notificados</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Reintentos de giro</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Errores CRC de la interfaz</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Errores del medio</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Entradas del registro de errores</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Reserva por debajo del umbral</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Fiabilidad degradada</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Fallo del respaldo de la memoria volátil</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 años</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>%1 de %2 discos respondieron</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>no hay ningún dispositivo detrás de esta ruta</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>no hay ningún disco detrás de %1</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 no es un dispositivo de bloques</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 no indica si está en reposo, así que no se ha consultado</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 está en reposo y no se ha consultado</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 no tiene S.M.A.R.T., o está desactivado</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 no tiene interfaz S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 no transmite las órdenes S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 no entrega su registro de salud NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 solo puede consultarlo un administrador</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 está fuera del alcance de este proceso</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 no responde</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 no responde para %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 no lee la salud de las unidades NVMe (la versión 2.10 sí)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 no tiene valores de salud de %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 no tiene un veredicto sobre la salud de %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 no conoce ninguna unidad detrás de %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>S.M.A.R.T. ATA de %1, que dio su veredicto sin valores</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>S.M.A.R.T. ATA de %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>Registro de salud NVMe de %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 para %1, leído hace %2 min</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 para %1</translation>
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
        <translation>%1, y %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 día</numerusform>
            <numerusform>%1 días</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Fallo inminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Verificado</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copiar como tabla Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Guardar mediciones…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exportar CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Lectura</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Eliminar esta medición</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Deteniendo, eliminando los archivos</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>No se pudo expresar la comprobación en JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>Distingue mayúsculas</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Conserva mayúsculas</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Archivos dispersos</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Enlaces duros</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Enlaces simbólicos</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Atributos extendidos</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Flujos con nombre</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Listas de control de acceso</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Clonación</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Diario (journal)</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Diario activo</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Sellado</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>no se sabe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Montado en</translation>
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
        <translation>Tamaño de bloque</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Transferencia óptima</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Nombre más largo</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Ruta más larga</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Máximo de enlaces</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Conectada por</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(atención)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>sin valores S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>no se pudo iniciar %1, que viene con la ventana</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 es una carpeta</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 no es un archivo normal</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 existe y no contiene mediciones; --force lo sustituiría</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Un valor de esta medición supera lo que puede contener un archivo.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>no se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>No se pudo escribir el historial.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>No se pudo escribir el resultado</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 no está en este entorno aislado, que solo tiene algunas carpetas del equipo</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 es del propio entorno aislado; la carpeta del equipo con ese nombre le está oculta.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>En esta carpeta hay archivos de otra medición en uso que no se han eliminado.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: el vaciado de los búferes en el disco falló (%2); puede que no esté todo lo que se escribió.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Preparación: el vaciado de los búferes en el disco falló (%1); puede que no esté todo lo que se escribió.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>No se pudo escribir el archivo de medición en su carpeta temporal.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>No se pudo añadir la medición al historial.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 es mayor de lo que puede ser un archivo de medición (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>no se pudo leer %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>la entrada estándar es mayor de lo que puede ser un archivo de medición (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>la entrada estándar no es un archivo de medición: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 no es un archivo de medición: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>No se pudo dibujar la imagen: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>No se pudo dibujar la imagen, o no se pudo escribir en su carpeta temporal.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>Dibujarla con los colores oscuros</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Un archivo de medición es lo que escribe «run --handoff», para una medición. La imagen es un archivo PNG de 1616
píxeles de ancho, con un margen transparente; se muestra su ruta. No hace falta pantalla. Una imagen con el mismo
título sustituye a la anterior; permanece hasta que termina la sesión o hasta que el sistema vacía su carpeta temporal.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Estado de salida: 0 hecho, 1 no se pudo leer un archivo o crear la imagen, 2 uso incorrecto.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Dibujar una imagen de una medición para compartir, o de varias comparadas</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Cuánto escribir y releer (por omisión: todo el espacio libre)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Cuánto queda libre en todo caso (por omisión: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Muestras por todo el intervalo, en unos segundos: detecta una
capacidad falsa y no demuestra nada si no encuentra ninguna</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Leer todo una vez más, S segundos después</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Mostrar un objeto JSON: el veredicto, la frase y todo lo encontrado</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Escribe archivos distintos en cada bloque en una carpeta oculta dentro de FOLDER, los relee sin pasar por la caché del sistema,
lo compara todo y los elimina, también tras Ctrl+C. No se toca ningún archivo suyo; pero en un dispositivo con capacidad falsa
toda escritura más allá de su tamaño real puede destruir lo que haya ahí, igual que cualquier otro uso. --quick escribe solo
muestras. Los archivos de una comprobación finalizada a la fuerza los elimina la siguiente medición o comprobación en FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES son cifras solas, o cifras con K, M, G, T (KiB, MiB, GiB, TiB: base 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Estado de salida: 0 no se encontró ningún problema, 1 fallo, 2 uso incorrecto, 3 se encontraron
defectos, 130 detenido por una señal; se muestra lo encontrado hasta entonces.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Comprobar si un volumen es tan grande como dice y conserva lo que se le confía</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>Como text (por omisión), markdown, csv o json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Permitir que --output sustituya un archivo con cualquier contenido</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Mostrar los datos como un objeto JSON</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Mostrar la lista como una matriz JSON</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>No se escribe nada en ningún sitio. Lo que el sistema no indica
aparece como «--» o «no se sabe», y no figura en el objeto JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Cada sistema de archivos aparece una vez, en su punto de montaje más corto. Se omite lo que montan para sí
mismos el sistema, sus paquetes y sus contenedores. Un servidor que no responde a tiempo aparece sin capacidad.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>La unidad solo se consulta: si está en reposo no se despierta, y no se activa nada
en ella. De dónde proceden los datos de salud, o por qué no los hay, lo dice «facts».</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Mostrar dónde está FOLDER: volumen, sistema de archivos, unidad y su salud</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Listar los volúmenes montados</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Mostrar la salud de la unidad que contiene FOLDER</translation>
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
        <translation>Mostrar este texto</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick en un terminal: lo rápido que es un disco, medido en él sin dejar nada.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Mostrar este texto o, tras una orden, las opciones de esa orden</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostrar la versión</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>El archivo que escribe «export»</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Permitir que «delete» elimine todas las mediciones</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION es una de las siguientes</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>una línea por medición, primero la más reciente, que empieza por su nombre (por omisión)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>mostrar mediciones como hace «show», en el formato de --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>escribir mediciones en el FILE de --output, en el formato de --format o del
nombre de FILE: .csv, .json, .md, .txt, o .tarnwickrun para una sola medición</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>eliminar mediciones, sin preguntar y para siempre</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>Un RUN se nombra como en la lista, o con cuatro o más caracteres iniciales de su identificador. Sin RUN se entienden
todas las mediciones; «delete» exige entonces --all. Una ventana abierta se actualiza en cuanto se vuelve a ella.
--output sustituye un archivo existente solo si está vacío o contiene mediciones; con --force, también cualquier otro.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Estado de salida: 0 hecho, 1 no existe tal medición o hubo un fallo, 2 uso incorrecto.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Listar, mostrar, exportar o eliminar las mediciones que guarda la ventana</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES son cifras solas, o cifras con K, M, G, T (KiB, MiB, GiB, TiB: base 1024). Los bloques se redondean hacia arriba
a páginas enteras de 4096. Los valores por omisión son los de la ventana, para que sus resultados y estos se puedan
comparar, salvo en los bloques de las pruebas secuenciales: la ventana usa la «Transferencia óptima» que muestra «facts».</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Todo se escribe en una carpeta oculta dentro de FOLDER y se elimina al final, también tras Ctrl+C. Lo que una medición finalizada
a la fuerza dejó en FOLDER se elimina antes de empezar; los archivos que siguen en uso se quedan, tras un segundo de espera.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>Los archivos de --handoff y --card permanecen hasta que termina la sesión o hasta que el sistema vacía su
carpeta temporal. --output sustituye un archivo existente solo si está vacío o contiene mediciones (un
archivo de medición, o lo que «show --format» y «history export» escriben como json o csv); con --force,
también cualquier otro. Una ventana abierta muestra una medición añadida con --keep en cuanto se vuelve a
ella. Si algo no se puede escribir, los valores se muestran igualmente y la medición cuenta como fallida.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Estado de salida: 0 hecho, 1 fallo, 2 uso incorrecto, 130 detenido por una señal.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Medir el sistema de archivos que contiene FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Pruebas que realizar, siempre en este orden: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (por omisión: todas)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Tamaño del archivo de datos, o fill para llenar el disco (por omisión: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>Lo que deja libre --size fill (por omisión: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Bytes por llamada, escritura secuencial (por omisión: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Bytes por llamada, lectura secuencial (por omisión: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Bytes por operación aleatoria (por omisión: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Operaciones en cada prueba aleatoria (por omisión: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Archivos en la prueba de operaciones de archivos (por omisión: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Dejar que el sistema guarde el archivo de datos en la caché, como hacen los programas corrientes</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Segundos mínimos entre dos puntos de medida (por omisión: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Mostrar un objeto JSON: el plan, cada valor, cada punto de medida,
fecha, carpeta, volumen, sistema de archivos, unidad, núcleo y, en
«evidence» y «remarks», lo que se observó y lo que significa</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Escribir ahí un archivo de medición, para la ventana, para «show» y para otros</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Añadir la medición al historial de la ventana</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Escribir un archivo de medición para la ventana y para «show», y mostrar
su ruta como última línea; con --json: como «handoffFile» en el objeto</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Dibujar una imagen de la medición para compartir, con colores claros (light) u
oscuros (dark), y mostrar su ruta como última línea; con --json: como «cardFile»</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Un archivo de medición es lo que escriben «run --handoff» y «run --output», para una medición. El historial
de la ventana (history.json) y la salida de «show --format json» tienen varias. «-» es la entrada estándar.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>Como texto, unas barras comparan los valores de varias mediciones: el mayor de cada tipo llena su pista, y «--» figura donde una
medición no tiene ninguno. Las líneas caben en el terminal, o en 80 columnas. Una tabla Markdown sirve para foros. CSV tiene una
línea por medición, con números simples para hojas de cálculo y scripts. JSON es una lista del contenido de los archivos de medición.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Un archivo que no se puede mostrar recibe una línea en la salida de error estándar, y los demás se muestran.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Estado de salida: 0 se mostraron todos, 1 no todos, 2 uso incorrecto.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Mostrar mediciones a partir de sus archivos, y varias lado a lado</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>no hay ninguna medición %1 en el historial</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 designa varias mediciones</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Medición</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Iniciando</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Deteniendo, eliminando los archivos de prueba</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Preparando el archivo de prueba, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Iniciando, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Sostenida</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Pico</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operaciones</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Peor</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Consultar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>falta un RUNFILE que dibujar</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 es un año como máximo</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>no existe la opción %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite ningún valor</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 necesita un valor: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 solo se usa con %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 necesita un número entero de %2 a %3, no %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 necesita un número de bytes, como 4096, 64K o 5GiB, de %2 a %3, no %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 necesita un número de segundos, 0 o más, no %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>falta un FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>un solo FOLDER cada vez</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 es text, markdown, csv o json, no %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 necesita el nombre de un archivo</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 no admite ningún operando</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 necesita %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>un archivo de medición contiene una medición, no %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>%1 es necesario si el nombre de FILE no termina en .tarnwickrun, .csv, .json, .md o .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 necesita RUN o bien %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 solo se usa con %2 y %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 admite list, show, export y delete, no %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>falta una orden; véase %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>no existe la orden %1; véase %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>falta un FOLDER que medir</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>falta un FOLDER que comprobar</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>un solo FOLDER cada vez, no también %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>el nombre de FOLDER está vacío</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: no existe la prueba %2, solo %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 es light o dark, no %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>falta un FILE que mostrar</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Listo para medir</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Elija un volumen para empezar</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Configure las pruebas y los ajustes a la izquierda y pulse «Iniciar medición».</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Elija un volumen montado o una carpeta en la barra de herramientas.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Advertencia</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Todo el espacio libre</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Tras %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Se escriben, releen y eliminan muestras repartidas por todo el espacio elegido. Tarda unos segundos, detecta la mayoría de las capacidades falsas y no demuestra nada si no encuentra ninguna.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>Se escriben, releen, comparan y eliminan %1. Sus archivos no se tocan.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Todo el espacio libre se escribe, relee, compara y libera. Sus archivos no se tocan.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Todo el espacio libre, unos %1, se escribe, relee, compara y libera. En un volumen grande eso tarda horas; mientras tanto, el volumen está lleno para otros programas. Sus archivos no se tocan.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1&#xa0;% de la comprobación</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>en una parte</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>en %1 parte</numerusform>
            <numerusform>en %1 partes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>De %1 a %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
        <translation>Comprobado</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texto copiado</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>No se pudo copiar el texto.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>No se pudo guardar el archivo: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Guardado como «%1»</translation>
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
        <translation>Unidad %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>completada</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>en curso</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>pendiente</translation>
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
        <translation>Quedan unos segundos</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>Quedan unos segundos de esta prueba</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Queda cerca de %n s</numerusform>
            <numerusform>Quedan unos %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>Queda cerca de %n s de esta prueba</numerusform>
            <numerusform>Quedan unos %n s de esta prueba</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Queda cerca de %n min</numerusform>
            <numerusform>Quedan unos %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>Queda cerca de %n min de esta prueba</numerusform>
            <numerusform>Quedan unos %n min de esta prueba</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Queda cerca de %n h</numerusform>
            <numerusform>Quedan unas %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>Queda cerca de %n h de esta prueba</numerusform>
            <numerusform>Quedan unas %n h de esta prueba</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 de %2 operación</numerusform>
            <numerusform>%1 de %2 operaciones</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparando…</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Medición completa</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
        <translation>Volumen</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Seleccionar mediciones para comparar</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Mediciones anteriores</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Vaciar</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Comparar %n</numerusform>
            <numerusform>Comparar %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>medición actual</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>¿Eliminar todas las mediciones guardadas?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Eliminar todas</translation>
    </message>
</context>
<context>
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>Durante la prueba llegó al disco como máximo el %1 de lo escrito.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>Durante la prueba llegó al disco el %1 de lo escrito.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>Como máximo el %1 de lo leído procedía del disco.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>El %1 de lo leído procedía del disco.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>No todo lo escrito pudo pasar de los búferes al disco: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>El archivo de prueba no pudo pasar de los búferes al disco: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 durante los primeros %2, después %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>La unidad alcanzó %1 tras %2 (límite %3), y desde entonces la velocidad fue un %4 menor.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Una pausa de más de 1 s: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 pausa de más de 1 s, la más larga de %2.</numerusform>
            <numerusform>%1 pausas de más de 1 s, la más larga de %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>Otros programas transfirieron %1 en el mismo disco durante la prueba.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>El enlace %1 de la unidad funciona a %2; la unidad podría alcanzar %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>La partición empieza %1 después del inicio de un bloque físico de %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>Solo el %1 del volumen estaba libre.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Los %1 de la prueba podrían caber en una caché de %2.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>El equipo funcionaba con batería.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>El procesador estaba configurado para ahorrar energía.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>El equipo funcionaba con batería, con el procesador configurado para ahorrar energía.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>El sistema de archivos escribe los cambios en lugares nuevos y calcula sumas de comprobación de los datos.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>El sistema de archivos escribe los cambios en lugares nuevos.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Active «Omitir la caché». Si ya está activado, elija un tamaño mayor que la memoria del equipo.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Consulte el estado S.M.A.R.T. de la unidad y el registro del sistema antes de confiarle datos.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Los datos pasaron por una caché aunque se pidió al sistema que la omitiera.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Elija un tamaño mayor que la memoria del equipo, o pruebe el disco subyacente mediante otro sistema de archivos.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Cuente con la velocidad más baja cuando se transfiera más que eso de una vez.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Dé más aire a la unidad o póngale un disipador, y repita la medición cuando se haya enfriado.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Repita la medición. Si las pausas vuelven, revise el estado S.M.A.R.T. de la unidad y su cable.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Repita la medición mientras nada más use el disco.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Pruebe con otro puerto, ranura o cable.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Vuelva a crear la partición de modo que empiece en un múltiplo de 1 MiB. Eso la borra.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Libere espacio: muchas unidades y sistemas de archivos se ralentizan cuando están llenos.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Elija un tamaño mayor y active «Omitir la caché».</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Repita la medición con el equipo conectado a la red eléctrica y sin ahorro de energía.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>El disco que hay detrás de este volumen no es visible, por lo que nada muestra lo que hizo por sí mismo.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Este volumen guarda sus archivos en la memoria; no se midió ningún disco.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Elija una carpeta en un disco.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Este volumen es un archivo en otro volumen.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Para medir ese otro volumen en sí, elija una carpeta en él.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>El disco es de una máquina virtual, cuyo anfitrión puede guardarlo en caché.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>El sistema de archivos comprime. Los datos de la prueba no se comprimen, así que otros archivos pueden ser más rápidos.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>El sistema de archivos escribe los datos dos veces, primero en su diario.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Se accedió a esta carpeta a través del portal del escritorio, un programa que forma parte de los valores.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Permita que el entorno aislado use la carpeta misma y elíjala de nuevo.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>No válido</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Precaución</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Velocidad de discos y análisis de volúmenes</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Escanee para medir el suyo</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Tipo de notificación</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Petición de función</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Resumen: una descripción de una línea</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>¿Qué le gustaría que hiciera %1?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>¿Qué ocurrió? Pasos para reproducirlo y qué esperaba.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>Correo electrónico (opcional, si desea que le respondamos)</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Se adjuntarán: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick: comparación</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Gracias</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Notificar un problema</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Su notificación se ha registrado. Gracias por ayudar a mejorar %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Notificar en la web:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Iniciar medición</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Velocidad de transferencia en el tiempo</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Sombreado: el último tercio de cada prueba, cuya mediana es la velocidad sostenida. Triángulos: velocidad pico y mínima.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Medición</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (no válido)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick: %n medición</numerusform>
            <numerusform>Ondel Tarnwick: %n mediciones</numerusform>
        </translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texto copiado</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Tabla copiada</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>No se pudo copiar el texto.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Listas de mediciones</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Mediciones de Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Tablas CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>No se pudo guardar el archivo: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Guardado como «%1»</translation>
    </message>
</context>
<context>
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>No es del disco: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>No son del disco: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Lectura aleatoria %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Escritura aleatoria %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operaciones de archivos</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Lectura/escritura</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
        <translation>Aleatorio</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Caché</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>Omitida</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>Usada</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Valores copiados</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>No se pudieron copiar los valores.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, no es del disco</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Escritura secuencial</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Lectura secuencial</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Cambiar nombre del informe…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Compartir imagen del informe…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Copiar valores</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copiar como tabla Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Guardar archivo de medición…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exportar CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Comparar con la última medición de este volumen</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Eliminar medición</translation>
    </message>
</context>
<context>
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Hay una comprobación de capacidad en curso</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Hay una medición en curso</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>escritura %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>lectura %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>La medición ha fallado</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Medición completada</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>La comprobación de capacidad ha fallado</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Comprobación de capacidad completada</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>Acerca de estos valores</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Qué significan estas observaciones</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Lectura aleatoria</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Escritura aleatoria</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. archivos</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>pico %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>mín. %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, pico</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, mínimo</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, latencia</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>Acerca de estos valores</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>Servidor %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Servidor de red</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Unidad externa</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Volumen de red</translation>
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
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Guardar estos valores en un archivo de texto</translation>
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
        <translation>%1  (atención)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Informe S.M.A.R.T. de Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Bloque de escritura</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Bloque de lectura</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Bloque aleatorio</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>Omitir la caché</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  óptimo</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <extracomment>Button: opens a menu</extracomment>
        <translation>Compartir</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Copiar imagen</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Enviar por correo…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copiar como tabla Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Guardar archivo de medición…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Guardar mediciones…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exportar CSV…</translation>
    </message>
</context>
<context>
    <name>SharedImageText</name>
    <message>
        <source>Image copied</source>
        <translation>Imagen copiada</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>No se pudo copiar la imagen.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>No se pudo guardar la imagen: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Guardado como «%1»</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>No se pudo abrir la carpeta.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>No se pudo abrir ningún programa de correo.</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Pruebas y ajustes</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Comprobando…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Midiendo…</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>Completada</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallida</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 es gratuito.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>Si le resulta útil, su apoyo ayuda a que siga adelante.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Apoyar en Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Ocultar durante una semana</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>Ya he apoyado %1</translation>
    </message>
</context>
<context>
    <name>TargetFactsText</name>
    <message>
        <source>Sparse files</source>
        <translation>Archivos dispersos</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Clonación</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantáneas</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Enlaces duros</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Enlaces simbólicos</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Mayúsculas: no se sabe</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>Distingue mayúsculas</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>No distingue mayúsculas</translation>
    </message>
    <message>
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 externo</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 interno</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 extraíble</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 de red</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>No se pudo abrir la carpeta.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Tamaño de E/S óptimo</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Tamaño de bloque</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Nombre máx.</translation>
    </message>
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 carácter</numerusform>
            <numerusform>%1 caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Ruta máx.</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>No se sabe: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Sin valores S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Elija una carpeta del volumen que se va a probar (ahí se crea una carpeta de trabajo temporal que luego se elimina).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Seleccionar</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>la ventana que ya está abierta no responde; hará lo solicitado en cuanto pueda.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>la ventana que ya está abierta (proceso %1) no responde; hará lo solicitado en cuanto pueda.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Escritura</translation>
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
        <translation>Acerca de Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Abrir archivo de medición…</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
        <translation>&amp;Medición</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Iniciar medición</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Comprobar capacidad…</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Menu entry: begins to choose runs</extracomment>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Deshacer eliminación</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Ayuda de Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Notificar un problema…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Apoyar Tarnwick…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Busca una versión nueva más o menos una vez al día y pregunta antes de instalarla. Si está desactivado, Tarnwick solo busca cuando usted elige «Buscar actualizaciones».</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Esta compilación no se actualiza sola. Las versiones de desarrollo se compilan sin la fuente de actualizaciones, así que no pueden sustituirse por una versión publicada.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Idioma de la ventana</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>Se aplica a la ventana la próxima vez que se inicie Tarnwick.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Imágenes compartidas en inglés</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Si está desactivado, sus textos están en el idioma de la ventana.</translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>Apoyar Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick es gratuito y obra de un solo desarrollador. Su apoyo cubre el alojamiento y el tiempo necesario para mantenerlo.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Apoyar en Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Ya he apoyado Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Oculta la nota de apoyo al pie de la barra lateral.</translation>
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
        <translation>Velocidad de transferencia en el tiempo</translation>
    </message>
</context>
<context>
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: de %2 a %3 %6 en %4, último valor %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Aún no hay valores.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>%n medición eliminada</numerusform>
            <numerusform>%n mediciones eliminadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Medición eliminada</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2&#xa0;%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>¿Buscar actualizaciones automáticamente?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>El programa está actualizado</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Hay una versión nueva de %1 disponible</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Descargando la actualización…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Comprobando la firma de la actualización…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>La actualización está lista para instalarse</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>No se pudieron buscar actualizaciones</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>No se pudo obtener la actualización</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 puede buscar una versión nueva más o menos una vez al día. No envía nada sobre usted ni sobre sus discos, y pregunta antes de descargar nada.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 es la versión más reciente.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>Tiene la versión %1. La descarga de la %2 ocupa %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2 está firmado por su creador. A partir de aquí continúa el instalador de software del sistema.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Buscar automáticamente</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Instalar actualización</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>No buscar</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>No se pudo contactar con el servidor de actualizaciones. Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>No se pudo leer la respuesta del servidor de actualizaciones.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>El servidor de actualizaciones de esta compilación no utiliza una conexión segura, así que no se le solicitó nada.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Hay una versión nueva de %1, pero el servidor de actualizaciones no indica lo necesario para descargarla de forma segura.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>No se pudo descargar la actualización. Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>La descarga no tiene la longitud que debería tener la actualización, así que se descartó.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>La descarga no está firmada por el creador de %1, así que se descartó.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>No hay suficiente espacio para la actualización en la carpeta temporal.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>No se pudo escribir la actualización en la carpeta temporal.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>Ningún programa de este sistema abre el paquete de la actualización.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Seleccionar un volumen</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Ningún volumen seleccionado</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Volúmenes montados</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Comprobar capacidad…</translation>
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
        <translation>Externo</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Extraíble</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Red</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Raíz</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Llenar disco</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Velocidad sostenida: la mediana de la velocidad en el último tercio de la prueba, a la que se estabiliza una copia larga; pico y mínimo son la décima de segundo más rápida y la más lenta.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Hace que los datos no pasen por la memoria del sistema, para medir el disco y no la caché.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Escribe un archivo grande de principio a fin y vacía los búferes en el disco, como hace una copia larga a este volumen.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Lee un archivo grande de principio a fin, como hace una copia larga desde este volumen.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Lee bloques en lugares dispersos del archivo, uno cada vez como la mayoría de los programas: varios a la vez medirían la cola de la unidad y no cuánto se espera; los IOPS son la cantidad de esas operaciones por segundo.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Escribe bloques en lugares dispersos del archivo, uno cada vez como la mayoría de los programas: varios a la vez medirían la cola de la unidad y no cuánto se espera; los IOPS son la cantidad de esas operaciones por segundo.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Crea, consulta, cambia de nombre y elimina archivos vacíos; el valor indica cuántos creó por segundo.</translation>
    </message>
</context>
</TS>
