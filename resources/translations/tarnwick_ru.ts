<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Поддержать %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Благодарности</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>%1 % – %2</source>
        <translation>%1 % – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Сейчас недоступно</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Сейчас недоступно</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>пик %1
мин. %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>пик %1 · мин. %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Не удалось связаться с сервером. Проверьте подключение и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>Сервер отклонил сообщение (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Возможности тома</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>Вмещает ли том столько, сколько заявлено, и сохраняет ли записанное?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Проверяемое место</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Повторное чтение</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Быстро: только пробы</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Начать проверку</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Сохранить отчёт…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Копировать отчёт как текст</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Новая проверка</translation>
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
        <translation>Остановить</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
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
        <translation>Ёмкость %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Назад к замерам</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Карта проверяемого места</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Скорость по ходу места, до %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Чтение</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Из записанного этот том хранит лишь первые %1.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Заявленный размер тома — %1, но хранит он лишь первые %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Заявленный размер тома — %1, но хранит он лишь примерно первые %2.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Один блок на отметке %1 оказался изменённым.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 блок на отметке %2 оказался изменённым.</numerusform>
            <numerusform>%1 блока на отметке %2 оказались изменёнными.</numerusform>
            <numerusform>%1 блоков на отметке %2 оказались изменёнными.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 блок оказался изменённым, первый — на отметке %2.</numerusform>
            <numerusform>%1 блока оказались изменёнными, первый — на отметке %2.</numerusform>
            <numerusform>%1 блоков оказались изменёнными, первый — на отметке %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 из %2 оказались изменёнными, первый блок — на отметке %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Один блок на отметке %1 сначала был верным, а позже изменился.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 блок на отметке %2 сначала был верным, а позже изменился.</numerusform>
            <numerusform>%1 блока на отметке %2 сначала были верными, а позже изменились.</numerusform>
            <numerusform>%1 блоков на отметке %2 сначала были верными, а позже изменились.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 блок сначала был верным, а позже изменился, первый — на отметке %2.</numerusform>
            <numerusform>%1 блока сначала были верными, а позже изменились, первый — на отметке %2.</numerusform>
            <numerusform>%1 блоков сначала были верными, а позже изменились, первый — на отметке %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 из %2 сначала были верными, а позже изменились, первый блок — на отметке %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>Не удалось прочитать один блок на отметке %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>Не удалось прочитать %1 блок на отметке %2.</numerusform>
            <numerusform>Не удалось прочитать %1 блока на отметке %2.</numerusform>
            <numerusform>Не удалось прочитать %1 блоков на отметке %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>Не удалось прочитать %1 блок, первый — на отметке %2.</numerusform>
            <numerusform>Не удалось прочитать %1 блока, первый — на отметке %2.</numerusform>
            <numerusform>Не удалось прочитать %1 блоков, первый — на отметке %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>Не удалось прочитать %1 из %2, первый блок — на отметке %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>Не удалось записать один блок на отметке %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>Не удалось записать %1 блок на отметке %2.</numerusform>
            <numerusform>Не удалось записать %1 блока на отметке %2.</numerusform>
            <numerusform>Не удалось записать %1 блоков на отметке %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>Не удалось записать %1 блок, первый — на отметке %2.</numerusform>
            <numerusform>Не удалось записать %1 блока, первый — на отметке %2.</numerusform>
            <numerusform>Не удалось записать %1 блоков, первый — на отметке %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Кроме записанных %2, не удалось записать %1, первый блок — на отметке %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Один блок на отметке %1 удалось записать или прочитать лишь со второй попытки.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%1 блок на отметке %2 удалось записать или прочитать лишь со второй попытки.</numerusform>
            <numerusform>%1 блока на отметке %2 удалось записать или прочитать лишь со второй попытки.</numerusform>
            <numerusform>%1 блоков на отметке %2 удалось записать или прочитать лишь со второй попытки.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 блок удалось записать или прочитать лишь со второй попытки, первый — на отметке %2.</numerusform>
            <numerusform>%1 блока удалось записать или прочитать лишь со второй попытки, первый — на отметке %2.</numerusform>
            <numerusform>%1 блоков удалось записать или прочитать лишь со второй попытки, первый — на отметке %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%1 из %2 удалось записать или прочитать лишь со второй попытки, первый блок — на отметке %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Один блок на отметке %1 при чтении не совпал с записанным.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%1 блок на отметке %2 при чтении не совпал с записанным.</numerusform>
            <numerusform>%1 блока на отметке %2 при чтении не совпали с записанным.</numerusform>
            <numerusform>%1 блоков на отметке %2 при чтении не совпали с записанным.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 блок при чтении не совпал с записанным, первый — на отметке %2.</numerusform>
            <numerusform>%1 блока при чтении не совпали с записанным, первый — на отметке %2.</numerusform>
            <numerusform>%1 блоков при чтении не совпали с записанным, первый — на отметке %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%1 из %2 при чтении не совпали с записанным, первый блок — на отметке %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>До остановки проверка встретила блоки, которые при чтении не совпали с записанным, первый — на отметке %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>На том удалось записать %1 из %2, всё остальное он отклонил.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>Проверка остановлена до того, как что-либо было прочитано.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>Проверка остановлена, когда с записанным совпало %1 из %2.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>Пробные блоки хранят записанное, но лежат слишком близко друг к другу.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Пробные блоки по всему объёму %1 хранят записанное, но это не доказательство.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Пробные блоки по всему свободному месту (%1) хранят записанное, но это не доказательство.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Ваша квота на томе исчерпана после %1 из %2; эта часть хранит записанное.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Том заполнился после %1 из %2; эта часть хранит записанное.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Всё (%1) совпало с записанным, но прочитано в основном из памяти: о диске это говорит мало.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Весь объём (%1) хранит записанное.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Всё свободное место (%1) хранит записанное.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Заявленный размер</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Реальный размер</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Проверяемое место</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 свободного места</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Пробы</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, шаг %2</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>При первом чтении блок был верным.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>На отметке %1, %2: инвертирован один бит.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>На отметке %1, %2: инвертирован %3 бит.</numerusform>
            <numerusform>На отметке %1, %2: инвертировано %3 бита.</numerusform>
            <numerusform>На отметке %1, %2: инвертировано %3 бит.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>причина неизвестна</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>На отметке %1, %2: не удалось прочитать (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>На отметке %1, %2: не удалось записать (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>На отметке %1, %2: удалось записать или прочитать лишь со второй попытки (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>На отметке %1, %2: прочитано записанное в другом месте.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>На отметке %1, %2: раз за разом читается блок, записанный на отметке %3.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>На отметке %1, %2: прочитано записанное на отметке %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>На отметке %1, %2: прочитаны нули.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>На отметке %1, %2: прочитано то, что сюда никогда не записывалось.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Чего не покажет ни одна проверка: исправно ли место под вашими файлами, что накопитель держит в резерве и надолго ли хватит исправленного блока.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Этот том хранит файлы в памяти: ни один диск не проверен.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Лишь %1 % прочитанного получено с диска. Проверьте больше, чем вмещает память компьютера.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Диск, на котором лежит этот том, не виден, поэтому прочитанное могло поступить из кэша.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Проверка остановлена: о том, что она не прочитала, ничего не известно.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Быстрая проверка пишет лишь в несколько мест. Она за секунды находит большинство подделок; если ничего не найдено, это ничего не доказывает.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Проверено меньше, чем намечалось: место могли занять другие программы.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопитель</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Записано</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Прочитано</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>Повтор через %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Без изменений</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Изменено</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Ошибка чтения</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Ошибка записи</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Со второй попытки</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Прочитано с диска</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>И ещё в одном месте.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>И ещё в %1 месте.</numerusform>
            <numerusform>И ещё в %1 местах.</numerusform>
            <numerusform>И ещё в %1 местах.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Ёмкость %1</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Подготовка…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Запись проб</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Чтение записанного</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Повторное чтение</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Не записано</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Не читается</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Не записывается</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Чтение</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Сравнить с последним замером этого тома</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>Запись во времени</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Чтение во времени</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Сравнение замеров</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>Сравнено замеров: %1</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Сканируйте и попробуйте</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Значение не с диска</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>Сравнение замеров: %1</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Поделиться изображением сравнения</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Эталон для сравнения</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation>Завершено</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Приложить диагностику</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Недавние действия этого сеанса. Имена файлов, серверов и учётных записей заменяются анонимными метками ещё до записи.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Просмотреть…</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Скрыть тесты и настройки</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Показать тесты и настройки</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Переименовать этот отчёт. Название появится и на изображениях, которыми вы делитесь.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Название отчёта</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Поделиться изображением отчёта</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Удалить замер</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Свернуть</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Значение не с диска</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Заполнить диск?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Тест пишет, пока свободного места не останется %1, а затем всё удаляет. На большом накопителе это займёт много времени, и до конца теста места на нём не хватит больше ничему.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Заполнить диск</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Показать в папке: %1</translation>
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
        <translation>Прежние проверки</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Норма</translation>
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
        <translation>&amp;История</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Копировать как текст</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Копировать как таблицу Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Сохранить замеры…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Экспорт в CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Чтение</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Удалить «%1»</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Удалить этот замер</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Всё готово к замеру</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Выберите том, чтобы начать</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Настройте тесты слева и нажмите «Начать замер».</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Выберите подключённый том или папку на панели инструментов.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>Накопитель %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Весь замер</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>тома</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Панель меню</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Выберите замеры для сравнения</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Предыдущие замеры</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Сравнить</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Сравнить (%1)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>текущий замер</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Удалить все сохранённые замеры?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Удалить все</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>Рабочая папка:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>временная, создаётся там и затем удаляется</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Замеры Tarnwick</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Анализатор скорости дисков и томов</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Сканируйте и измерьте свой</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Тип сообщения</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Пожелание</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Кратко — описание в одну строку</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>Что должна уметь программа %1?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Что произошло? Как это повторить и чего вы ожидали.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>Эл. почта — по желанию, если хотите получить ответ</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>Будет приложено: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Спасибо</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Сообщить о проблеме</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Ваше сообщение принято. Спасибо, что помогаете улучшать %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Сообщить через веб:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Начать замер</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Скорость передачи во времени</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Закрашена последняя треть каждого теста, её медиана — установившаяся скорость. Треугольники: пиковая и наименьшая скорость.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Последовательная запись</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Последовательное чтение</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Переименовать отчёт…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Поделиться изображением отчёта…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Копировать значения</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Копировать как текст</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Копировать как таблицу Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Сохранить файл замера…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Экспорт в CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Сравнить с последним замером этого тома</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Удалить замер</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Идёт проверка ёмкости</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Идёт замер</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Замер не удался</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>запись %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>чтение %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Замер завершён</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Проверка ёмкости завершена</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Проверка ёмкости не удалась</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>Об этих значениях</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Что означают эти примечания</translation>
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
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Сохранить эти значения в текстовый файл</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Блок записи</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Блок чтения</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Блок случ. доступа</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>В обход кэша</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Копировать изображение</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Отправить по почте…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Копировать как текст</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Копировать как таблицу Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Сохранить файл замера…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Сохранить замеры…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Экспорт в CSV…</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Тесты и настройки</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Тесты</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Проверка…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Замер…</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 — бесплатная программа.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>Если она вам полезна, ваша поддержка поможет её развивать.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Поддержать на Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Скрыть на неделю</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>Я уже поддерживаю %1</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запись</translation>
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
        <translation>О программе Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Выбрать папку…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Открыть файл замера…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Замер</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Начать замер</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Проверить ёмкость…</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Сравнить</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Отменить удаление</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Справка Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Сообщить о проблеме…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Поддержать Tarnwick…</translation>
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
        <translation>Всё свободное место</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Через %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Пробные блоки по всему выбранному месту записываются, считываются и удаляются. Это занимает секунды, выявляет большинство подделок и ничего не доказывает, если ни одной не найдено.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>Тестовые данные (%1) записываются, считываются, сверяются и удаляются. Ваши файлы не затрагиваются.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Всё свободное место заполняется, считывается, сверяется и освобождается. Ваши файлы не затрагиваются.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Всё свободное место, около %1, заполняется, считывается, сверяется и освобождается. На большом томе это занимает часы; всё это время том для других программ заполнен. Ваши файлы не затрагиваются.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1 % проверки</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>в одной части</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>в %1 части</numerusform>
            <numerusform>в %1 частях</numerusform>
            <numerusform>в %1 частях</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>От %1 до %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Проверено</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Текст скопирован</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Не удалось скопировать текст.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Не удалось сохранить файл: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Сохранено как «%1»</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>готово</translation>
    </message>
    <message>
        <source>running</source>
        <translation>выполняется</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>ожидает</translation>
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
        <translation>несколько секунд</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>около %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>около %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>около %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Осталось %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>До конца теста осталось %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 операций</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Подготовка…</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::RunExports</name>
    <message>
        <source>%1 runs</source>
        <translation>замеры (%1)</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Текст скопирован</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Таблица скопирована</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Не удалось скопировать текст.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Списки замеров</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Замеры Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Таблицы CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Не удалось сохранить файл: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Сохранено как «%1»</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>эталон</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Значение не с диска: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Значения не с диска: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Случайное чтение %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Случайная запись %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Операции с файлами</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Запись/чтение</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Случайный доступ</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопитель</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Файловая система</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Ёмкость</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Кэш</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>В обход</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>С кэшем</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Значения скопированы</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Не удалось скопировать значения.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, значение не с диска</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>Изображение скопировано</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Не удалось скопировать изображение.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Не удалось сохранить изображение: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Сохранено как «%1»</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Не удалось открыть папку.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Не удалось открыть почтовую программу.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>Разреженные файлы</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Клонирование</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Снимки</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Жёсткие ссылки</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Символьные ссылки</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Регистр неизвестен</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>С учётом регистра</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Без учёта регистра</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Не удалось открыть папку.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Файловая система</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Оптим. размер В/В</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Размер блока</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Макс. имя файла</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 симв.</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Макс. путь</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Ёмкость</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Неизвестно: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Нет значений S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Проверять обновления автоматически</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Примерно раз в день ищет новую версию и спрашивает, прежде чем её установить. Если выключено, Tarnwick проверяет обновления, только когда вы выбираете «Проверить обновления».</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Проверить сейчас</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Эта сборка не обновляется сама. Сборки для разработки создаются без канала обновлений, чтобы не заменить себя выпуском.</translation>
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
        <translation>Поддержать Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick — бесплатная программа одного разработчика. Поддержка покрывает хостинг и время, которое нужно на её развитие.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Поддержать на Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Я уже поддерживаю Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Скрывает просьбу о поддержке внизу боковой панели.</translation>
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
        <translation>Скорость передачи во времени</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>Удалено замеров: %1</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Замер удалён</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
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
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустить эту версию</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Проверять обновления автоматически?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Проверка обновлений…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>У вас последняя версия</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Доступна новая версия %1</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Загрузка обновления…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Проверка подписи обновления…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>Обновление готово к установке</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Не удалось проверить обновления</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Не удалось получить обновление</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 может примерно раз в день искать новую версию. Сведения о вас и ваших дисках не отправляются, а перед загрузкой программа всегда спрашивает.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 — самая новая версия.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>У вас версия %1. Размер загрузки версии %2: %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>Пакет %1 %2 подписан разработчиком. Дальше установку продолжит установщик программ вашей системы.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Проверять автоматически</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Установить обновление</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Не проверять</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Не удалось связаться с сервером обновлений. Проверьте подключение к интернету и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Не удалось разобрать ответ сервера обновлений.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>Сервер обновлений этой сборки доступен не по защищённому соединению, поэтому запрос не отправлен.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Есть новая версия %1, но сервер обновлений не сообщает того, что нужно для её безопасной загрузки.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Не удалось загрузить обновление. Проверьте подключение к интернету и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>Размер загруженного файла не соответствует обновлению, поэтому файл удалён.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>Загруженный файл не подписан разработчиком %1, поэтому он удалён.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>Во временной папке недостаточно места для обновления.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Не удалось записать обновление во временную папку.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>В этой системе нет программы, открывающей пакет обновления.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Выберите том</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Том не выбран</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Подключённые тома</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Выбрать папку…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Проверить ёмкость…</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Установившаяся: медиана скорости за последнюю треть теста, на которой держится долгое копирование; пиковая и наименьшая — его самая быстрая и самая медленная десятая доля секунды.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Пропускает данные мимо памяти системы, чтобы измерялся диск, а не кэш.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Записывает один большой файл от начала до конца и сбрасывает его на диск, как при долгом копировании на этот том.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Читает один большой файл от начала до конца, как при долгом копировании с этого тома.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Читает блоки в разных местах файла, по одному за раз, как большинство программ: несколько сразу показали бы очередь накопителя, а не время ожидания; IOPS — число таких операций в секунду.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Записывает блоки в разные места файла, по одному за раз, как большинство программ: несколько сразу показали бы очередь накопителя, а не время ожидания; IOPS — число таких операций в секунду.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Создаёт, ищет, переименовывает и удаляет пустые файлы; значение — сколько их создано за секунду.</translation>
    </message>
</context>
</TS>
