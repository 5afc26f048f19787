<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>Про програму %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Підтримати %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Подяки</translation>
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
        <translation>Більше</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Зараз недоступно</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Зараз недоступно</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>пік %1
мін. %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>пік %1 · мін. %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Не вдалося зв’язатися із сервером. Перевірте з’єднання і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>Сервер відхилив повідомлення (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Можливості тому</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>Чи вміщує том стільки, скільки заявлено, і чи зберігає записане?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Місце для перевірки</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Повторне читання</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Швидко: лише проби</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Почати перевірку</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Зберегти звіт…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Копіювати звіт як текст</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Нова перевірка</translation>
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
        <translation>Зупинити</translation>
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
        <translation>Місткість %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Назад до вимірювань</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Карта перевіреного місця</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Швидкість уздовж місця, до %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Читання</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Із записаного цей том зберігає лише перші %1.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Заявлений розмір тому — %1, але зберігає він лише перші %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Заявлений розмір тому — %1, але зберігає він лише приблизно перші %2.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Один блок на позначці %1 виявився зміненим.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 блок на позначці %2 виявився зміненим.</numerusform>
            <numerusform>%1 блоки на позначці %2 виявилися зміненими.</numerusform>
            <numerusform>%1 блоків на позначці %2 виявилися зміненими.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 блок виявився зміненим, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоки виявилися зміненими, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоків виявилися зміненими, перший — на позначці %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 з %2 виявилися зміненими, перший блок — на позначці %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Один блок на позначці %1 спершу був правильним, а згодом змінився.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 блок на позначці %2 спершу був правильним, а згодом змінився.</numerusform>
            <numerusform>%1 блоки на позначці %2 спершу були правильними, а згодом змінилися.</numerusform>
            <numerusform>%1 блоків на позначці %2 спершу були правильними, а згодом змінилися.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 блок спершу був правильним, а згодом змінився, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоки спершу були правильними, а згодом змінилися, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоків спершу були правильними, а згодом змінилися, перший — на позначці %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 з %2 спершу були правильними, а згодом змінилися, перший блок — на позначці %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>Не вдалося прочитати один блок на позначці %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>Не вдалося прочитати %1 блок на позначці %2.</numerusform>
            <numerusform>Не вдалося прочитати %1 блоки на позначці %2.</numerusform>
            <numerusform>Не вдалося прочитати %1 блоків на позначці %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>Не вдалося прочитати %1 блок, перший — на позначці %2.</numerusform>
            <numerusform>Не вдалося прочитати %1 блоки, перший — на позначці %2.</numerusform>
            <numerusform>Не вдалося прочитати %1 блоків, перший — на позначці %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>Не вдалося прочитати %1 з %2, перший блок — на позначці %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>Не вдалося записати один блок на позначці %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>Не вдалося записати %1 блок на позначці %2.</numerusform>
            <numerusform>Не вдалося записати %1 блоки на позначці %2.</numerusform>
            <numerusform>Не вдалося записати %1 блоків на позначці %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>Не вдалося записати %1 блок, перший — на позначці %2.</numerusform>
            <numerusform>Не вдалося записати %1 блоки, перший — на позначці %2.</numerusform>
            <numerusform>Не вдалося записати %1 блоків, перший — на позначці %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Крім записаних %2, не вдалося записати %1, перший блок — на позначці %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Один блок на позначці %1 вдалося записати або прочитати лише з другої спроби.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%1 блок на позначці %2 вдалося записати або прочитати лише з другої спроби.</numerusform>
            <numerusform>%1 блоки на позначці %2 вдалося записати або прочитати лише з другої спроби.</numerusform>
            <numerusform>%1 блоків на позначці %2 вдалося записати або прочитати лише з другої спроби.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 блок вдалося записати або прочитати лише з другої спроби, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоки вдалося записати або прочитати лише з другої спроби, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоків вдалося записати або прочитати лише з другої спроби, перший — на позначці %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%1 з %2 вдалося записати або прочитати лише з другої спроби, перший блок — на позначці %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Один блок на позначці %1 під час читання не збігся із записаним.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%1 блок на позначці %2 під час читання не збігся із записаним.</numerusform>
            <numerusform>%1 блоки на позначці %2 під час читання не збіглися із записаним.</numerusform>
            <numerusform>%1 блоків на позначці %2 під час читання не збіглися із записаним.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 блок під час читання не збігся із записаним, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоки під час читання не збіглися із записаним, перший — на позначці %2.</numerusform>
            <numerusform>%1 блоків під час читання не збіглися із записаним, перший — на позначці %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%1 з %2 під час читання не збіглися із записаним, перший блок — на позначці %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>До зупинення перевірка виявила блоки, які під час читання не збіглися із записаним, перший — на позначці %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>На том вдалося записати %1 з %2, усе решту він відхилив.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>Перевірку зупинено до того, як щось було прочитано.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>Перевірку зупинено, коли із записаним збіглося %1 з %2.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>Пробні блоки зберігають записане, але розташовані надто близько один до одного.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Пробні блоки по всьому обсягу %1 зберігають записане, але це не доказ.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Пробні блоки по всьому вільному місцю (%1) зберігають записане, але це не доказ.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Вашу квоту на томі вичерпано після %1 з %2; ця частина зберігає записане.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Том заповнився після %1 з %2; ця частина зберігає записане.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Усе (%1) збіглося із записаним, але прочитано переважно з пам’яті: про диск це говорить мало.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Увесь обсяг (%1) зберігає записане.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Усе вільне місце (%1) зберігає записане.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Заявлений розмір</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Справжній розмір</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Місце для перевірки</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 вільного місця</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Проби</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, крок %2</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>Під час першого читання блок був правильним.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>На позначці %1, %2: інвертовано один біт.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>На позначці %1, %2: інвертовано %3 біт.</numerusform>
            <numerusform>На позначці %1, %2: інвертовано %3 біти.</numerusform>
            <numerusform>На позначці %1, %2: інвертовано %3 бітів.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>причина невідома</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>На позначці %1, %2: не вдалося прочитати (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>На позначці %1, %2: не вдалося записати (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>На позначці %1, %2: вдалося записати або прочитати лише з другої спроби (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>На позначці %1, %2: прочитано записане в іншому місці.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>На позначці %1, %2: щоразу читається блок, записаний на позначці %3.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>На позначці %1, %2: прочитано записане на позначці %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>На позначці %1, %2: прочитано нулі.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>На позначці %1, %2: прочитано те, чого сюди ніколи не записували.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Чого не покаже жодна перевірка: чи справне місце під вашими файлами, що накопичувач тримає в резерві та чи надовго вистачить виправленого блоку.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Цей том зберігає файли в пам’яті: жодного диска не перевірено.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Лише %1 % прочитаного надійшло з диска. Перевірте більше, ніж уміщує пам’ять комп’ютера.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Диск, на якому розташовано цей том, не видно, тому прочитане могло надійти з кешу.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Перевірку зупинено: про те, чого вона не прочитала, нічого не відомо.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Швидка перевірка пише лише в кілька місць. Вона за секунди виявляє більшість підробок; якщо нічого не виявлено, це нічого не доводить.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Перевірено менше, ніж планувалося: місце могли зайняти інші програми.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопичувач</translation>
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
        <translation>Повторно через %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Без змін</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Змінено</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Помилка читання</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Помилка запису</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>З другої спроби</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Прочитано з диска</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>І ще в одному місці.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>І ще в %1 місці.</numerusform>
            <numerusform>І ще в %1 місцях.</numerusform>
            <numerusform>І ще в %1 місцях.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Місткість %1</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Приготування…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Запис проб</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Читання записаного</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Очікування</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Повторне читання</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Не записано</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Не читається</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Не записується</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Читання</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Порівняти з останнім вимірюванням цього тому</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>Запис у часі</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Читання в часі</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Порівняння вимірювань</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>Порівняно вимірювань: %1</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Скануйте і спробуйте</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Значення не з диска</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>Порівняння вимірювань: %1</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Поділитися зображенням порівняння</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Еталон для порівняння</translation>
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
        <translation>Долучити діагностику</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Нещодавні дії цього сеансу. Назви файлів, серверів та облікових записів замінюються анонімними мітками ще до запису.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Переглянути…</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Приховати тести й параметри</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Показати тести й параметри</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Перейменувати цей звіт. Назва з’явиться і на зображеннях, якими ви ділитеся.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Назва звіту</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Поділитися зображенням звіту</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Вилучити вимірювання</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Згорнути</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Значення не з диска</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Заповнити диск?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Тест пише, доки вільного місця не залишиться %1, а потім усе вилучає. На великому накопичувачі це триватиме довго, і до кінця тесту місця на ньому не вистачить більше нічому.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Заповнити диск</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Показати в теці</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Показати в теці: %1</translation>
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
        <translation>Попередні перевірки</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>Збій</translation>
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
        <translation>&amp;Історія</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Копіювати як текст</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Копіювати як таблицю Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Зберегти вимірювання…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Експортувати CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Читання</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Вилучити «%1»</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Вилучити це вимірювання</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Усе готово до вимірювання</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Виберіть том, щоб почати</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Налаштуйте тести й параметри ліворуч і натисніть «Почати вимірювання».</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Виберіть змонтований том або теку на панелі інструментів.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>Попередження</translation>
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
        <translation>Накопичувач %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Усе вимірювання</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>тому</translation>
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
        <translation>Смужка меню</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Виберіть вимірювання для порівняння</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Попередні вимірювання</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Порівняти</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Спорожнити</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Порівняти (%1)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>поточне вимірювання</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Вилучити всі збережені вимірювання?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Вилучити всі</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>Робоча тека:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>тимчасова, створюється там і потім вилучається</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Зберегти як</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Вимірювання Tarnwick</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Аналізатор швидкості дисків і томів</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Скануйте і виміряйте свій</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Тип повідомлення</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Вада</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Побажання</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Стисло — опис одним рядком</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробиці</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>Що має вміти %1?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Що сталося? Як це відтворити і чого ви очікували.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>Ел. пошта — необов’язково, якщо хочете отримати відповідь</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>Буде долучено: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Дякуємо</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Повідомити про проблему</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Ваше повідомлення прийнято. Дякуємо, що допомагаєте вдосконалювати %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Повідомити через веб:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Надіслати</translation>
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
        <translation>Зупинити</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Почати вимірювання</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Швидкість передавання в часі</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Затінено останню третину кожного тесту, її медіана — усталена швидкість. Трикутники: пікова і найменша швидкість.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Послідовний запис</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Послідовне читання</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Перейменувати звіт…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Поділитися зображенням звіту…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Копіювати значення</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Копіювати як текст</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Копіювати як таблицю Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Зберегти файл вимірювання…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Експортувати CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Порівняти з останнім вимірюванням цього тому</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Вилучити вимірювання</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Триває перевірка місткості</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Триває вимірювання</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Вимірювання не вдалося</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>запис %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>читання %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Вимірювання завершено</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Перевірку місткості завершено</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Перевірка місткості не вдалася</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>Про ці значення</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Що означають ці примітки</translation>
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
        <translation>Експортувати…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Зберегти ці значення до текстового файла</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Блок запису</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Блок читання</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Випадковий блок</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>В обхід кешу</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Параметри</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Поділитися</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Копіювати зображення</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Зберегти як…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показати в теці</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Надіслати поштою…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Копіювати як текст</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Копіювати як таблицю Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Зберегти файл вимірювання…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Зберегти вимірювання…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Експортувати CSV…</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Тести й параметри</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Тести</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Параметри</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Перевірка…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Вимірювання…</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Збій</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 — безкоштовна програма.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>Якщо вона вам корисна, ваша підтримка допоможе її розвивати.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Підтримати на Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Не зараз</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Приховати на тиждень</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>Я вже підтримую %1</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запис</translation>
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
        <translation>Про програму Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Перевірити оновлення…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Параметри…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Вибрати теку…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Відкрити файл вимірювання…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Вимірювання</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Почати вимірювання</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Зупинити</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Перевірити місткість…</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Порівняти</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Скасувати вилучення</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Довідка</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Довідка Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Повідомити про проблему…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Підтримати Tarnwick…</translation>
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
        <translation>Усе вільне місце</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ні</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Через %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Пробні блоки по всьому вибраному місцю записуються, зчитуються і вилучаються. Це триває секунди, виявляє більшість підробок і нічого не доводить, якщо жодної не знайдено.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>Тестові дані (%1) записуються, зчитуються, порівнюються і вилучаються. Ваших файлів це не зачіпає.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Усе вільне місце заповнюється, зчитується, порівнюється і звільняється. Ваших файлів це не зачіпає.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Усе вільне місце, близько %1, заповнюється, зчитується, порівнюється і звільняється. На великому томі це триває години; весь цей час том для інших програм заповнений. Ваших файлів це не зачіпає.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 з %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1 % перевірки</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>в одній частині</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>у %1 частині</numerusform>
            <numerusform>у %1 частинах</numerusform>
            <numerusform>у %1 частинах</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>Від %1 до %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Перевірено</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Текст скопійовано</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Не вдалося скопіювати текст.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Не вдалося зберегти файл: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Збережено як «%1»</translation>
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
        <translation>виконується</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>очікує</translation>
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
        <translation>кілька секунд</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>близько %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>близько %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>близько %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Залишилося %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>До кінця тесту залишилося %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 з %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 операцій</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Приготування…</translation>
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
        <translation>вимірювання (%1)</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Текст скопійовано</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Таблицю скопійовано</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Не вдалося скопіювати текст.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Списки вимірювань</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Вимірювання Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Таблиці CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Не вдалося зберегти файл: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Збережено як «%1»</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>еталон</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Значення не з диска: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Значення не з диска: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Випадкове читання %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Випадковий запис %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Операції з файлами</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Запис/читання</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Випадковий доступ</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопичувач</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Файлова система</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Місткість</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Вільно</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Кеш</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>В обхід</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>З кешем</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Значення скопійовано</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Не вдалося скопіювати значення.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, значення не з диска</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Мережа</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>Зображення скопійовано</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Не вдалося скопіювати зображення.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Не вдалося зберегти зображення: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Збережено як «%1»</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Не вдалося відкрити теку.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Не вдалося відкрити поштову програму.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>Розріджені файли</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Клонування</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Знімки</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Жорсткі посилання</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Символічні посилання</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Регістр невідомий</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>З урахуванням регістру</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Без урахування регістру</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Не вдалося відкрити теку.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Файлова система</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Оптим. розмір В/В</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Розмір блоку</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Макс. назва файла</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 симв.</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Макс. шлях</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Місткість</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Вільно</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Невідомо: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Немає значень S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Автоматично перевіряти оновлення</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Приблизно раз на день шукає нову версію і запитує, перш ніж її встановити. Якщо вимкнено, Tarnwick перевіряє оновлення, лише коли ви вибираєте «Перевірити оновлення».</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Перевірити зараз</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Ця збірка не оновлюється сама. Збірки для розробки створюються без каналу оновлень, щоб не замінити себе випуском.</translation>
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
        <translation>Підтримати Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick — безкоштовна програма одного розробника. Підтримка покриває хостинг і час, потрібний на її розвиток.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Підтримати на Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Я вже підтримую Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Приховує прохання про підтримку внизу бічної панелі.</translation>
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
        <translation>Швидкість передавання в часі</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Мінімізувати</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Відновити</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Максимізувати</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>Вилучено вимірювань: %1</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Вимірювання вилучено</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
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
        <translation>Оновлення програми</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Нотатки щодо випуску</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустити цю версію</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 з %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Автоматично перевіряти оновлення?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Перевірка оновлень…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>У вас найновіша версія</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Доступна нова версія %1</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Отримання оновлення…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Перевірка підпису оновлення…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>Оновлення готове до встановлення</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Не вдалося перевірити оновлення</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Не вдалося отримати оновлення</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 може приблизно раз на день шукати нову версію. Відомості про вас і ваші диски не надсилаються, а перед отриманням програма завжди запитує.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 — найновіша версія.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>У вас версія %1. Розмір пакунка версії %2: %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>Пакунок %1 %2 підписано розробником. Далі встановлення продовжить засіб встановлення програм вашої системи.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Перевіряти автоматично</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Встановити оновлення</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Не перевіряти</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Нагадати пізніше</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Не вдалося зв’язатися із сервером оновлень. Перевірте з’єднання з інтернетом і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Не вдалося розібрати відповідь сервера оновлень.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>Сервер оновлень цієї збірки доступний не через захищене з’єднання, тому запит не надіслано.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Є нова версія %1, але сервер оновлень не повідомляє того, що потрібно для її безпечного отримання.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Не вдалося отримати оновлення. Перевірте з’єднання з інтернетом і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>Розмір отриманого файла не відповідає оновленню, тому файл вилучено.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>Отриманий файл не підписано розробником %1, тому його вилучено.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>У тимчасовій теці недостатньо місця для оновлення.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Не вдалося записати оновлення до тимчасової теки.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>У цій системі немає програми, яка відкриває пакунок оновлення.</translation>
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
        <translation>Виберіть том</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Том не вибрано</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Змонтовані томи</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Вибрати теку…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показати в теці</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Перевірити місткість…</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Усталена: медіана швидкості за останню третину тесту, на якій тримається тривале копіювання; пікова і найменша — його найшвидша і найповільніша десята частка секунди.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Пропускає дані повз пам’ять системи, щоб вимірювався диск, а не кеш.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Записує один великий файл від початку до кінця і скидає його на диск, як під час тривалого копіювання на цей том.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Читає один великий файл від початку до кінця, як під час тривалого копіювання з цього тому.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Читає блоки в різних місцях файла, по одному за раз, як більшість програм: кілька одразу показали б чергу накопичувача, а не час очікування; IOPS — кількість таких операцій за секунду.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Записує блоки в різні місця файла, по одному за раз, як більшість програм: кілька одразу показали б чергу накопичувача, а не час очікування; IOPS — кількість таких операцій за секунду.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Створює, шукає, перейменовує і вилучає порожні файли; значення — скільки їх створено за секунду.</translation>
    </message>
</context>
</TS>
