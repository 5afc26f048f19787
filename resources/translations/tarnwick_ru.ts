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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Недостаточно места: нужно %1, свободно только %2.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>Ошибка ввода-вывода: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Не удалось записать туда. Возможно, том доступен только для чтения или папка не разрешает запись.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>Тестовый файл слишком мал для размера блока случайного доступа.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Последовательная запись</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Последовательное чтение</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Случайное чтение</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Случайная запись</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Операции с файлами</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>файлов/с</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>наихудшая %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Во время замера папку удалили или её том отключили.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Том отключён, или его сервер недоступен.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>Во время замера накопитель сообщил об ошибке или был отключён.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>Том доступен только для чтения: системы переходят в этот режим, обнаружив на нём ошибку.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>Во время замера том заполнился, или ваша квота на нём исчерпана.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>Файловая система или ограничение этого сеанса не допускает файлов такого размера.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>Права доступа к папке изменились во время замера, или система это там запрещает.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>Недостаточно памяти для блоков такого размера.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Сейчас открыто слишком много файлов; закройте часть программ и попробуйте ещё раз.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>Слишком длинный заголовок ответа</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Нет доступного прокси-сервера</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>Не удалось загрузить libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Сообщение нельзя отправить из этой изолированной среды: в ней нет сети.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <translation>Ёмкость тома %1</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>Ёмкость тома</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
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
        <translation>Скорость вдоль объёма, до %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Чтение</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Чего не покажет ни одна проверка: исправно ли место под вашими файлами, что накопитель держит в резерве и надолго ли хватит исправленного блока.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Эта файловая система не резервирует место без записи, поэтому разнести пробные блоки не удалось. О размере тома результат ничего не говорит: проведите не быструю, а полную проверку.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Быстрая проверка пишет лишь в несколько мест: то, что лежит между ними, не проверено.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Быстрая проверка пишет лишь в несколько мест. Она за секунды находит большинство подделок; если ничего не найдено, это ничего не доказывает.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>Проверено меньше, чем намечалось: том заполнился слишком рано. Возможно, он потерял данные самой файловой системы.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Проверено меньше, чем намечалось: место могли занять другие программы.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Этот том хранит файлы в памяти: ни один диск не проверен.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Лишь %1&#xa0;% прочитанного получено с диска. Проверьте больше, чем вмещает память компьютера.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Диск, на котором лежит этот том, не виден, поэтому прочитанное могло поступить из кэша.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>Записанное сверх реального размера теряется или уничтожает другие данные на томе. Скопируйте с него нужное и не доверяйте ему.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Проверка остановлена: о том, что она не прочитала, ничего не известно.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Эта файловая система не выдаёт ничего, что не совпадает с её контрольными суммами: изменённые данные на ней прочитать нельзя.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Ёмкость тома %1</translation>
    </message>
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
        <translation>До остановки проверка обнаружила блоки, которые при чтении не совпали с записанным, первый — на отметке %1.</translation>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Эта файловая система не умеет разносить пробные блоки: проверено лишь %1 в одном месте, эта часть хранит записанное.</translation>
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
        <source>about %1</source>
        <translation>около %1</translation>
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
        <source>In one place</source>
        <translation>В одном месте</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Чтение</translation>
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
        <translation>Использование: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Открывает анализатор скорости дисков и томов, выбирает первую папку и показывает файлы замеров (*.tarnwickrun).
  --check-capacity  перейти к проверке тома этой папки
  --choose-folder   предложить выбрать папку
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 — не папка и не файл замера, который можно открыть.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Запись во времени</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Чтение во времени</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>эталон</translation>
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
        <translation>Сравнение замеров</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>Сравнён %n замер</numerusform>
            <numerusform>Сравнено %n замера</numerusform>
            <numerusform>Сравнено %n замеров</numerusform>
        </translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>Сравнение %n замера</numerusform>
            <numerusform>Сравнение %n замеров</numerusform>
            <numerusform>Сравнение %n замеров</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Поделиться изображением сравнения</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Эталон для сравнения</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Случайное чтение</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Случайная запись</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Оп. с файлами</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>оп./с</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>свободно %1</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Тест с заполнением диска</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>Тест %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>Ч/З %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>З: %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>Ч: %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>Случ. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Без кэша</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>С кэшем</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>DialogsText</name>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Замеры Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>Файл «%1» повреждён или не является замером Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>«%1» — не папка и не файл замера, который можно открыть.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>Повреждены или не являются замерами Tarnwick: «%1» и ещё %2 файл.</numerusform>
            <numerusform>Повреждены или не являются замерами Tarnwick: «%1» и ещё %2 файла.</numerusform>
            <numerusform>Повреждены или не являются замерами Tarnwick: «%1» и ещё %2 файлов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>Это не папки и не файлы замеров, которые можно открыть: «%1» и ещё %2 объект.</numerusform>
            <numerusform>Это не папки и не файлы замеров, которые можно открыть: «%1» и ещё %2 объекта.</numerusform>
            <numerusform>Это не папки и не файлы замеров, которые можно открыть: «%1» и ещё %2 объектов.</numerusform>
        </translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Замер: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>значение не с диска</translation>
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
        <translation>Прежние проверки</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Возможен отказ</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Норма</translation>
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
        <translation>Критическое предупреждение</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Израсходованный ресурс</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Доступный резерв</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Порог резерва</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Время работы</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Включения питания</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Циклы парковки головок</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Небезопасные отключения</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Записано данных</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Прочитано данных</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Команды чтения хоста</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Команды записи хоста</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Занятость контроллера</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Переназначенные секторы</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Ожидающие секторы</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Неисправимые секторы</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Сообщено неисправимых ошибок</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Повторы раскрутки</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Ошибки CRC интерфейса</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Ошибки носителя</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Записи журнала ошибок</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Диски</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Резерв ниже порога</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Надёжность снижена</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Отказ резервного питания</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 года</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>ответили диски: %1 из %2</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>за этим путём нет устройства</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>за %1 нет диска</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 — не блочное устройство</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 не сообщает, спит ли он, поэтому опрос не проводился</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 спит, поэтому опрос не проводился</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>у %1 нет S.M.A.R.T., или он отключён</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>у %1 нет интерфейса S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 не передаёт команды S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 не выдаёт журнал состояния NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>опрашивать %1 может только администратор</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 вне досягаемости этого процесса</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 не отвечает</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 не отвечает о %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не отвечает</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 не читает состояние накопителей NVMe (это умеет версия 2.10)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>у UDisks2 нет значений состояния %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>у UDisks2 нет оценки состояния %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 не знает накопителя за %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>ATA S.M.A.R.T. диска %1, который дал оценку без значений</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>ATA S.M.A.R.T. диска %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>Журнал состояния NVMe диска %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 для %1, прочитано %2 min назад</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 для %1</translation>
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
        <translation>%1, а %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 день</numerusform>
            <numerusform>%1 дня</numerusform>
            <numerusform>%1 дней</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Возможен отказ</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Норма</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Чтение</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Удалить «%1»</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Удалить этот замер</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Остановка, удаление файлов</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>Не удалось представить проверку в формате JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>С учётом регистра</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Сохраняет регистр</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Разреженные файлы</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Жёсткие ссылки</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Символьные ссылки</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Расширенные атрибуты</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Именованные потоки</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Списки управления доступом</translation>
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
        <source>Journal</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Журнал включён</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Опечатан</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Ёмкость</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Доступно</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Тип тома</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Зашифрован</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Точка монтирования</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Размер блока</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Оптимальный блок обмена</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Самое длинное имя</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Самый длинный путь</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Макс. ссылок</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Подключён через</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Интерфейс</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(внимание)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Файловая система</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопитель</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>нет значений S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>не удалось запустить %1 из комплекта оконной программы</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не отвечает</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 — папка</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 — не обычный файл</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 уже существует и не содержит замеров; --force заменит его</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Одно из значений этого замера выходит за пределы того, что может хранить файл.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>Не удалось записать историю.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Не удалось записать результат</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 — не папка</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 нет в этой изолированной среде: в ней есть лишь некоторые папки компьютера</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 — собственная папка изолированной среды; папка компьютера с таким именем от неё скрыта.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>Файлы другого замера в этой папке используются и не были удалены.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: сброс на носитель не удался (%2); записанное могло попасть туда не полностью.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Подготовка: сброс на носитель не удался (%1); записанное могло попасть туда не полностью.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Не удалось записать файл замера во временную папку.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>Не удалось добавить замер в историю.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 больше, чем может быть файл замера (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>не удалось прочитать %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>стандартный ввод</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>стандартный ввод больше, чем может быть файл замера (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>стандартный ввод — не файл замера: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 — не файл замера: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>Не удалось нарисовать изображение: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>Не удалось нарисовать изображение или записать его во временную папку.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>Рисовать в тёмных цветах</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Файл замера — это файл, который записывает &quot;run --handoff&quot;, для одного замера. Изображение — файл PNG шириной 1616
пикселей с прозрачными полями; выводится путь к нему. Экран не нужен. Изображение с тем же названием заменяет
прежнее; оно хранится до конца сеанса или до очистки системой временной папки.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Код завершения: 0 выполнено, 1 не удалось прочитать файл или создать изображение, 2 неверный вызов.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Нарисовать изображение замера или сравнения нескольких</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Сколько записать и прочитать (по умолчанию: всё свободное место)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Сколько в любом случае оставить свободным (по умолчанию: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Пробные блоки по всему объёму, за секунды: выявляет ложную
ёмкость, но ничего не доказывает, если её не нашла</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Прочитать всё ещё раз через S секунд</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Вывести один объект JSON: оценку, фразу и всё найденное</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Записывает в скрытую папку внутри FOLDER файлы, различающиеся в каждом блоке, считывает их в обход кэша системы,
полностью сверяет и удаляет, в том числе после Ctrl+C. Ваши файлы не затрагиваются, но на устройстве с ложной ёмкостью
любая запись сверх реального размера может уничтожить лежащие там данные, как и при любом его использовании. --quick
записывает лишь пробные блоки. Файлы принудительно завершённой проверки удалит следующий замер или проверка в FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES — просто цифры или цифры с K, M, G, T (KiB, MiB, GiB, TiB: шаг 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Код завершения: 0 неполадок не найдено, 1 сбой, 2 неверный вызов, 3 найдены дефекты, 130 остановлено сигналом;
найденное к этому времени выводится.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Проверить, вмещает ли том заявленное и сохраняет ли записанное</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>В виде text (по умолчанию), markdown, csv или json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Разрешить --output заменять файл с любым содержимым</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Вывести сведения одним объектом JSON</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Вывести список одним массивом JSON</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Ничего никуда не записывается. Чего система не сообщает, то обозначено как &quot;--&quot; или &quot;неизвестно&quot; и не входит в
объект JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Каждая файловая система указана один раз, с кратчайшей точкой монтирования. То, что система, её пакеты и
контейнеры монтируют для себя, опускается. У сервера, не ответившего вовремя, ёмкость не указана.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>Накопитель только опрашивается: спящий не пробуждается, и ничего в нём не включается. Откуда взяты сведения о
его состоянии или почему их нет, сообщает &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Показать, на чём лежит FOLDER: том, файловую систему, накопитель и его состояние</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Показать список подключённых томов</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Вывести состояние накопителя, на котором лежит FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Использование: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Показать эту справку</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick в терминале: насколько быстр диск; измеряется на нём самом, следов не остаётся.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Показать эту справку, а после команды — её параметры</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Показать версию</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>Файл, который записывает &quot;export&quot;</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Разрешить &quot;delete&quot; удалить все замеры</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION — одно из</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>строка на каждый замер, сначала новые; начинается с его имени (по умолчанию)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>вывести замеры, как &quot;show&quot;, в формате из --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>записать замеры в FILE из --output, в формате из --format или по имени FILE: .csv, .json, .md, .txt
или .tarnwickrun для одного замера</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>удалить замеры без вопросов и навсегда</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>RUN указывается так, как в списке, или четырьмя и более начальными символами его id. Если он не указан, имеются в виду
все замеры; &quot;delete&quot; тогда требует --all. Открытое окно обновится, как только вы в него вернётесь. --output заменяет
существующий файл, только если он пуст или содержит замеры; с --force — и любой другой.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Код завершения: 0 выполнено, 1 такого замера нет или произошёл сбой, 2 неверный вызов.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Показать список, содержимое, экспортировать или удалить замеры, которые хранит окно</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES — просто цифры или цифры с K, M, G, T (KiB, MiB, GiB, TiB: шаг 1024). Блоки округляются вверх до целых
страниц по 4096. Значения по умолчанию — как в окне, чтобы результаты можно было сравнивать, кроме блоков
последовательных тестов: окно берёт &quot;Оптимальный блок обмена&quot;, который показывает &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Всё записывается в скрытую папку внутри FOLDER и в конце удаляется, в том числе после Ctrl+C. Оставленное в FOLDER
принудительно завершённым замером удаляется перед началом; ещё используемые файлы остаются после секунды ожидания.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>Файлы --handoff и --card хранятся до конца сеанса или до очистки системой временной папки. --output заменяет
существующий файл, только если он пуст или содержит замеры (файл замера или то, что &quot;show --format&quot; и &quot;history
export&quot; записывают в виде json или csv); с --force — и любой другой. Открытое окно покажет замер, добавленный
--keep, как только вы в него вернётесь. Если что-то не удаётся записать, значения всё равно выводятся, а замер
считается неудавшимся.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Код завершения: 0 выполнено, 1 сбой, 2 неверный вызов, 130 остановлено сигналом.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Измерить файловую систему, на которой лежит FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Выполняемые тесты, всегда в этом порядке: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (по умолчанию: все)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Размер файла данных или заполнение диска (по умолчанию: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>Сколько --size fill оставляет свободным (по умолчанию: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Байт на вызов, последовательная запись (по умолчанию: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Байт на вызов, последовательное чтение (по умолчанию: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Байт на случайную операцию (по умолчанию: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Операций в каждом тесте случайного доступа (по умолчанию: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Файлов в тесте операций с файлами (по умолчанию: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Разрешить системе кэшировать файл данных, как у обычных программ</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Минимум секунд между двумя отсчётами (по умолчанию: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Вывести один объект JSON: план, все значения, все отсчёты, дату,
папку, том, файловую систему, накопитель, ядро, а в &quot;evidence&quot; и
&quot;remarks&quot; — что наблюдалось и что это значит</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Записать туда файл замера — для окна, для &quot;show&quot; и других программ</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Добавить замер в историю окна</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Записать файл замера для окна и для &quot;show&quot; и вывести путь к нему
последней строкой; с --json: как &quot;handoffFile&quot; в объекте</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Нарисовать изображение замера в светлых или тёмных цветах, чтобы им
поделиться, и вывести путь к нему последней строкой; с --json: как &quot;cardFile&quot;</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Файл замера — это файл, который записывают &quot;run --handoff&quot; и &quot;run --output&quot;, для одного замера. История окна
(history.json) и вывод &quot;show --format json&quot; содержат несколько. &quot;-&quot; — стандартный ввод.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>В виде текста полосы сравнивают значения нескольких замеров: наибольшее каждого вида занимает всю длину, а &quot;--&quot; стоит
там, где у замера значения нет. Строки умещаются в терминале или в 80 столбцах. Таблица Markdown — для форумов. В CSV —
строка на каждый замер, с простыми числами для электронных таблиц и сценариев. JSON — список содержимого файлов замеров.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>О файле, который нельзя показать, сообщает строка в стандартном выводе ошибок, остальные показываются.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Код завершения: 0 показаны все, 1 не все, 2 неверный вызов.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Показать замеры из их файлов, в том числе несколько рядом</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>в истории нет замера %1</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 соответствует нескольким замерам</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Замер</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>Осталось %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Остановка, удаление тестовых файлов</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Подготовка тестового файла, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Запуск, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Накопитель</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Установившаяся</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Пиковая</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Наименьшая</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>В целом</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Операции</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Наихудшая</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Создание</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Опрос</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименование</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удаление</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>не указан RUNFILE для рисования</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 — не больше года</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>нет параметра %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 не принимает значения</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>для %1 нужно значение: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 используется только с %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>для %1 нужно целое число от %2 до %3, а не %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>для %1 нужно число байтов, например 4096, 64K или 5GiB, от %2 до %3, а не %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>для %1 нужно число секунд, 0 или больше, а не %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>не указан FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>только один FOLDER за раз</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 — это text, markdown, csv или json, а не %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>для %1 нужно имя файла</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 не принимает аргументов</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>для %1 нужно %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>файл замера хранит один замер, а не %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>нужно указать %1, если имя FILE не оканчивается на .tarnwickrun, .csv, .json, .md или .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>для %1 нужны RUN или %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 используется только с %2 и %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 принимает list, show, export и delete, а не %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>не указана команда; см. %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>нет команды %1; см. %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>не указан FOLDER для замера</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>не указан FOLDER для проверки</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>только один FOLDER за раз, без %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>имя FOLDER пусто</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: нет теста %2, есть только %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 — это light или dark, а не %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>не указан FILE для показа</translation>
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
        <translation>Задайте тесты и настройки слева и нажмите «Начать замер».</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Предупреждение</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Всё свободное место</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <translation>%1&#xa0;% проверки</translation>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>От %1 до %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
        <translation>Накопитель %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>готово</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>выполняется</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>ожидает</translation>
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
        <translation>Осталось несколько секунд</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>До конца теста осталось несколько секунд</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Осталось около %n s</numerusform>
            <numerusform>Осталось около %n s</numerusform>
            <numerusform>Осталось около %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>До конца теста осталось около %n s</numerusform>
            <numerusform>До конца теста осталось около %n s</numerusform>
            <numerusform>До конца теста осталось около %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Осталось около %n min</numerusform>
            <numerusform>Осталось около %n min</numerusform>
            <numerusform>Осталось около %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>До конца теста осталось около %n min</numerusform>
            <numerusform>До конца теста осталось около %n min</numerusform>
            <numerusform>До конца теста осталось около %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Осталось около %n h</numerusform>
            <numerusform>Осталось около %n h</numerusform>
            <numerusform>Осталось около %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>До конца теста осталось около %n h</numerusform>
            <numerusform>До конца теста осталось около %n h</numerusform>
            <numerusform>До конца теста осталось около %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 из %2 операции</numerusform>
            <numerusform>%1 из %2 операций</numerusform>
            <numerusform>%1 из %2 операций</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Подготовка…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Сравнить</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Очистить</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Сравнить (%n)</numerusform>
            <numerusform>Сравнить (%n)</numerusform>
            <numerusform>Сравнить (%n)</numerusform>
        </translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>За время теста до диска дошло не более %1 записанного.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>За время теста до диска дошло %1 записанного.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>С диска получено не более %1 прочитанного.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>С диска получено %1 прочитанного.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Не всё записанное удалось сбросить на диск: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>Тестовый файл не удалось сбросить на диск: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 на первых %2, затем %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>Накопитель нагрелся до %1 через %2 (предел %3), и с этого момента скорость была на %4 ниже.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Одна пауза дольше 1 s: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 пауза дольше 1 s, самая долгая — %2.</numerusform>
            <numerusform>%1 паузы дольше 1 s, самая долгая — %2.</numerusform>
            <numerusform>%1 пауз дольше 1 s, самая долгая — %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>Во время теста другие программы прочитали и записали %1 на том же диске.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>Соединение %1 накопителя работает на %2, а накопитель способен на %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>Раздел начинается со смещением %1 внутри физического блока в %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>На томе было свободно только %1.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Данные теста (%1) могут поместиться в кэш (%2).</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>Компьютер работал от аккумулятора.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>Процессор был настроен на экономию энергии.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>Компьютер работал от аккумулятора, а процессор был настроен на экономию энергии.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>Файловая система записывает изменения в новые места и считает контрольные суммы данных.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>Файловая система записывает изменения в новые места.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Включите «В обход кэша». Если уже включено, выберите размер больше объёма памяти компьютера.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Прежде чем доверять накопителю данные, посмотрите его состояние S.M.A.R.T. и журнал системы.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Данные прошли через кэш, хотя системе было велено его обойти.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Выберите размер больше объёма памяти компьютера или протестируйте нижележащий диск через другую файловую систему.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Когда за раз передаётся больше, рассчитывайте на меньшую скорость.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Обеспечьте накопителю обдув или радиатор и повторите замер, когда он остынет.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Повторите замер. Если паузы вернутся, проверьте состояние S.M.A.R.T. накопителя и его кабель.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Повторите замер, когда диск больше ничем не занят.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Попробуйте другой порт, слот или кабель.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Создайте раздел заново, с началом, кратным 1 MiB. Данные на нём будут стёрты.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Освободите место: многие накопители и файловые системы замедляются, когда заполнены.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Выберите больший размер и включите «В обход кэша».</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Повторите замер при питании от сети и с отключённым энергосбережением.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>Диск, на котором лежит этот том, не виден, поэтому неизвестно, что делал он сам.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Этот том хранит файлы в памяти; ни один диск не измерен.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Выберите папку на диске.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Этот том — файл на другом томе.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Чтобы измерить именно тот том, выберите папку на нём.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>Это диск виртуальной машины, и её хост может его кэшировать.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>Файловая система сжимает данные. Данные теста не сжимаются, поэтому другие файлы могут оказаться быстрее.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>Файловая система записывает данные дважды, сначала в журнал.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Эта папка доступна через портал рабочего стола — программу, работа которой входит в значения.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Разрешите изолированной среде доступ к самой папке и выберите её снова.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Недействительно</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Осторожно</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>К сведению</translation>
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
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Будет приложено: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — сравнение</translation>
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
        <translation>Сообщить на сайте:</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Закрашена последняя треть каждого теста, её медиана — установившаяся скорость. Треугольники: пиковая и наименьшая скорость.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Замер</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
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
        <source>Parameters</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (недействительно)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Примечания</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n замер</numerusform>
            <numerusform>Ondel Tarnwick — %n замера</numerusform>
            <numerusform>Ondel Tarnwick — %n замеров</numerusform>
        </translation>
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
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Значение не с диска: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Значения не с диска: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Случайное чтение %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Случайная запись %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Операции с файлами</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Чтение/запись</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Кэш</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>В обход</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>С кэшем</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Идёт проверка ёмкости</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Идёт замер</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>запись %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>чтение %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Замер не удался</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Замер завершён</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Проверка ёмкости не удалась</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Проверка ёмкости завершена</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Случайное чтение</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Случайная запись</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Оп. с файлами</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>пик %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>наименьшая %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, пик</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, наименьшая</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, задержка</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>Об этих значениях</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>Сервер %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Сетевой сервер</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Внешний накопитель</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Сетевой том</translation>
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
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  (внимание)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопитель</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Интерфейс</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Отчёт S.M.A.R.T. программы Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  оптимальный</translation>
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
        <extracomment>Button: opens a menu</extracomment>
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
    <name>SharedImageText</name>
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
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>TargetFactsText</name>
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
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 внешний</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 внутренний</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 съёмный</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 сетевой</translation>
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
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 символ</numerusform>
            <numerusform>%1 символа</numerusform>
            <numerusform>%1 символов</numerusform>
        </translation>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Неизвестно: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Нет значений S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Выберите папку на тестируемом томе (в ней создаётся временная рабочая папка, которая затем удаляется).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Выбрать</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>уже открытое окно не отвечает; оно выполнит запрошенное, как только сможет.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>уже открытое окно (процесс %1) не отвечает; оно выполнит запрошенное, как только сможет.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>Как в среде рабочего стола</translation>
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
        <translation>Язык</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Язык окна</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>Язык окна изменится при следующем запуске Tarnwick.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Изображения для отправки на английском</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Если выключено, их тексты — на языке окна.</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: от %2 до %3 %6 за %4, последнее значение %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Измерений пока нет.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>Удалён %n замер</numerusform>
            <numerusform>Удалено %n замера</numerusform>
            <numerusform>Удалено %n замеров</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Замер удалён</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2&#xa0;%</translation>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
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
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Внутренний</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Внешний</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Съёмный</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Сетевой</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Том</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Корень</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Заполнить диск</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Установившаяся: медиана скорости за последнюю треть теста, на этом уровне держится долгое копирование; пиковая и наименьшая — самая быстрая и самая медленная десятая доля секунды теста.</translation>
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
        <translation>Создаёт, опрашивает, переименовывает и удаляет пустые файлы; значение — сколько их создано за секунду.</translation>
    </message>
</context>
</TS>
