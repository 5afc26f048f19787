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
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
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
        <source>The server rejected the report (%1).</source>
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
        <translation>Capacidad de %1</translation>
    </message>
    <message>
        <source>Close</source>
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
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lectura</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
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
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>Las muestras contienen lo que se escribió, pero están muy juntas.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Las muestras repartidas por %1 contienen lo que se escribió, lo cual no es una prueba.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Las muestras repartidas por %1 de espacio libre contienen lo que se escribió, lo cual no es una prueba.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Su parte del volumen se agotó después de %1 de %2; estos contienen lo que se escribió.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>El volumen se llenó después de %1 de %2; estos contienen lo que se escribió.</translation>
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
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Lo que ninguna comprobación puede saber: si el espacio que ocupan sus archivos está en buen estado, qué guarda la unidad en reserva y si un bloque reparado durará.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Este volumen guarda sus archivos en la memoria: no se comprobó ningún disco.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Solo el %1 % de lo leído procedía del disco. Compruebe más de lo que cabe en la memoria del equipo.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>El disco que hay detrás de este volumen no es visible, por lo que lo devuelto puede proceder de una caché.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>La comprobación se detuvo: de lo que no había releído no se sabe nada.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Una comprobación rápida escribe solo en unos pocos lugares. Detecta la mayoría de las capacidades falsas en segundos; no encontrar nada no demuestra nada.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Se comprobó menos de lo previsto: puede que otros programas hayan ocupado el espacio.</translation>
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
        <translation>Al segundo intento</translation>
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
        <source>Capacity of %1</source>
        <translation>Capacidad de %1</translation>
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
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lectura</translation>
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
        <translation>Escritura en el tiempo</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Lectura en el tiempo</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Comparación de mediciones</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>%1 mediciones comparadas</translation>
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
    <message>
        <source>Comparing %1 runs</source>
        <translation>Comparación de %1 mediciones</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Compartir una imagen de la comparación</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Diferencias respecto a</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
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
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>¿Llenar el disco?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>La prueba escribe hasta que quedan %1 libres y luego lo elimina todo. En una unidad grande esto tarda mucho, y a todo lo demás que necesite espacio en ella le faltará hasta que termine la prueba.</translation>
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
        <translation>Fallo inminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Verificado</translation>
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
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lectura</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Eliminar esta medición</translation>
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
        <translation>Advertencia</translation>
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
        <translation>Unidad %1 °C</translation>
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
        <source>the volume</source>
        <translation>este volumen</translation>
    </message>
    <message>
        <source>Volume</source>
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
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Comparar %1</translation>
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
        <translation>Eliminar todo</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
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
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Mediciones de Tarnwick</translation>
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
        <translation>Se adjuntarán: %1 %2 · %3 · %4.</translation>
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
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Sombreado: el último tercio de cada prueba, cuya mediana es la velocidad sostenida. Triángulos: velocidad pico y mínima.</translation>
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
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Hay una comprobación de capacidad en curso</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Hay una medición en curso</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>La medición ha fallado</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>escritura %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>lectura %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Medición completada</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Comprobación de capacidad completada</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>La comprobación de capacidad ha fallado</translation>
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
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
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
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Write</source>
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
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Run</source>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation>Todo el espacio libre</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Tras %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Se escriben, releen y eliminan muestras repartidas por todo el espacio elegido. Tarda segundos, detecta la mayoría de las capacidades falsas y no demuestra nada si no encuentra ninguna.</translation>
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
        <translation>%1 % de la comprobación</translation>
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
        <translation>De %1 a %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
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
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>completada</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>pendiente</translation>
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
        <translation>unos segundos</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>unos %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>unos %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>unas %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Quedan %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>Quedan %1 de esta prueba</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 operaciones</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparando…</translation>
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
        <translation>%1 mediciones</translation>
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
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>referencia</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>No es del disco: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>No son del disco: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Lectura aleatoria %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Escritura aleatoria %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operaciones de archivos</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Lectura/Escritura</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Random</source>
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
        <translation>Libre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Caché</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>Omitida</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>Usada</translation>
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
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
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
    <name>TarnwickKit::views::TargetFacts</name>
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
    <message>
        <source>%1 chars</source>
        <translation>%1 caracteres</translation>
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
        <translation>Libre</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>No se sabe: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Sin valores S.M.A.R.T.: %1</translation>
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
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>%1 mediciones eliminadas</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Medición eliminada</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
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
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
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
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Velocidad sostenida: la mediana de la velocidad en el último tercio de la prueba, en la que se estabiliza una copia larga; pico y mínimo son la décima de segundo más rápida y la más lenta.</translation>
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
        <translation>Crea, busca, cambia de nombre y elimina archivos vacíos; el valor indica cuántos creó por segundo.</translation>
    </message>
</context>
</TS>
