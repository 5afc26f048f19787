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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Недостатньо місця: потрібно %1, вільно лише %2.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>Помилка введення-виведення: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Не вдалося записати туди. Можливо, том доступний лише для читання або тека не дозволяє запису.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>Тестовий файл замалий для розміру блоку випадкового доступу.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Послідовний запис</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Послідовне читання</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Випадкове читання</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Випадковий запис</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Операції з файлами</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>файлів/с</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>найгірша %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Під час вимірювання теку вилучено або її том від’єднано.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Том від’єднано, або його сервер недоступний.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>Під час вимірювання накопичувач повідомив про помилку або його від’єднано.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>Том доступний лише для читання: системи переходять у цей режим, коли виявляють на ньому помилку.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>Під час вимірювання том заповнився, або вашу квоту на ньому вичерпано.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>Файлова система або обмеження цього сеансу не дозволяє файлів такого розміру.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>Права доступу до теки змінилися під час вимірювання, або система це там забороняє.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>Недостатньо пам’яті для блоків такого розміру.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Зараз відкрито забагато файлів; закрийте кілька програм і спробуйте ще раз.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>Заголовок відповіді задовгий</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Немає доступного проксі-сервера</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>Не вдалося завантажити libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Повідомлення не можна надіслати з цього ізольованого середовища: у ньому немає мережі.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <translation>Місткість тому %1</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>Місткість тому</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
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
        <translation>Швидкість уздовж обсягу, до %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Читання</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Чого не покаже жодна перевірка: чи справне місце під вашими файлами, що накопичувач тримає в резерві та чи надовго вистачить виправленого блоку.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Ця файлова система не резервує місця без запису, тому розподілити пробні блоки не вдалося. Про розмір тому результат нічого не говорить: виконайте не швидку, а повну перевірку.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Швидка перевірка пише лише в кілька місць: те, що лежить між ними, не перевірено.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Швидка перевірка пише лише в кілька місць. Вона за секунди виявляє більшість підробок; якщо нічого не виявлено, це нічого не доводить.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>Перевірено менше, ніж планувалося: том заповнився зарано. Можливо, він утратив дані самої файлової системи.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Перевірено менше, ніж планувалося: місце могли зайняти інші програми.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Цей том зберігає файли в пам’яті: жодного диска не перевірено.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Лише %1&#xa0;% прочитаного надійшло з диска. Перевірте більше, ніж уміщує пам’ять комп’ютера.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Диск, на якому розташовано цей том, не видно, тому прочитане могло надійти з кешу.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>Записане понад справжній розмір втрачається або знищує інші дані на томі. Скопіюйте з нього потрібне і не довіряйте йому.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Перевірку зупинено: про те, чого вона не прочитала, нічого не відомо.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Ця файлова система не видає нічого, що не збігається з її контрольними сумами: змінених даних на ній прочитати не можна.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Місткість тому %1</translation>
    </message>
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
        <translation>На том вдалося записати %1 з %2, решту він відхилив.</translation>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Ця файлова система не вміє розподіляти пробні блоки: перевірено лише %1 в одному місці, ця частина зберігає записане.</translation>
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
        <source>about %1</source>
        <translation>близько %1</translation>
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
        <source>In one place</source>
        <translation>В одному місці</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Читання</translation>
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
        <translation>Використання: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Відкриває аналізатор швидкості дисків і томів, вибирає першу теку й показує файли вимірювань (*.tarnwickrun).
  --check-capacity  перейти до перевірки тому цієї теки
  --choose-folder   запропонувати вибрати теку
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 — не тека і не файл вимірювання, який можна відкрити.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Запис у часі</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Читання в часі</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>еталон</translation>
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
        <translation>Порівняння вимірювань</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>Порівняно %n вимірювання</numerusform>
            <numerusform>Порівняно %n вимірювання</numerusform>
            <numerusform>Порівняно %n вимірювань</numerusform>
        </translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>Порівняння %n вимірювання</numerusform>
            <numerusform>Порівняння %n вимірювань</numerusform>
            <numerusform>Порівняння %n вимірювань</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Поділитися зображенням порівняння</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Еталон для порівняння</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Випадкове читання</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Випадковий запис</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Оп. з файлами</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>оп./с</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>вільно %1</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Тест із заповненням диска</translation>
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
        <translation>Вип. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Без кешу</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>З кешем</translation>
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
    <name>DialogsText</name>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Вимірювання Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>Файл «%1» пошкоджено або він не є вимірюванням Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>«%1» — не тека і не файл вимірювання, який можна відкрити.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>Пошкоджено або не є вимірюваннями Tarnwick: «%1» і ще %2 файл.</numerusform>
            <numerusform>Пошкоджено або не є вимірюваннями Tarnwick: «%1» і ще %2 файли.</numerusform>
            <numerusform>Пошкоджено або не є вимірюваннями Tarnwick: «%1» і ще %2 файлів.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>Це не теки й не файли вимірювань, які можна відкрити: «%1» і ще %2 об’єкт.</numerusform>
            <numerusform>Це не теки й не файли вимірювань, які можна відкрити: «%1» і ще %2 об’єкти.</numerusform>
            <numerusform>Це не теки й не файли вимірювань, які можна відкрити: «%1» і ще %2 об’єктів.</numerusform>
        </translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Вимірювання: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>значення не з диска</translation>
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
        <translation>Попередні перевірки</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Можлива відмова</translation>
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
        <translation>Критичне попередження</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Використаний ресурс</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Доступний резерв</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Поріг резерву</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Час роботи</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Увімкнення живлення</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Цикли паркування головок</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Небезпечні вимкнення</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Записано даних</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Прочитано даних</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Команди читання хоста</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Команди запису хоста</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Зайнятість контролера</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Перепризначені сектори</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Сектори в очікуванні</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Невиправні сектори</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Повідомлено невиправних помилок</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Повтори розкручування</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Помилки CRC інтерфейсу</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Помилки носія</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Записи журналу помилок</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Диски</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Резерв нижче порога</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Надійність знижено</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Лише читання</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Відмова резервного живлення</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Невідомо</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 року</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>відповіли диски: %1 з %2</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>за цим шляхом немає пристрою</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>за %1 немає диска</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 — не блоковий пристрій</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 не повідомляє, чи він спить, тому опитування не проводилося</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 спить, тому опитування не проводилося</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 не має S.M.A.R.T., або його вимкнено</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 не має інтерфейсу S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 не передає команд S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 не надає журналу стану NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>опитувати %1 може лише адміністратор</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 поза досяжністю цього процесу</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 не відповідає</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 не відповідає щодо %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не відповідає</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 не читає стану накопичувачів NVMe (це вміє версія 2.10)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 не має значень стану %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 не має оцінки стану %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 не знає накопичувача за %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>ATA S.M.A.R.T. диска %1, який дав оцінку без значень</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>ATA S.M.A.R.T. диска %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>Журнал стану NVMe диска %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 для %1, прочитано %2 min тому</translation>
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
            <numerusform>%1 дні</numerusform>
            <numerusform>%1 днів</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Можлива відмова</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Читання</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Вилучити «%1»</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Вилучити це вимірювання</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Зупинення, вилучення файлів</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>Не вдалося подати перевірку у форматі JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>З урахуванням регістру</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Зберігає регістр</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Розріджені файли</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Жорсткі посилання</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Символічні посилання</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Розширені атрибути</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Іменовані потоки</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Списки керування доступом</translation>
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
        <source>Journal</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Журнал увімкнено</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Опечатано</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>так</translation>
    </message>
    <message>
        <source>no</source>
        <translation>ні</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>невідомо</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Місткість</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Доступно</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Зайнято</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Тип тому</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Лише читання</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Зашифровано</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Точка монтування</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Пристрій</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Розмір блоку</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Оптимальний блок обміну</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Найдовша назва</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Найдовший шлях</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Макс. посилань</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Під’єднано через</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Джерело</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Інтерфейс</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(увага)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Файлова система</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопичувач</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>немає значень S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>не вдалося запустити %1 з комплекту віконної програми</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 не відповідає</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 — тека</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 — не звичайний файл</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 уже існує і не містить вимірювань; --force замінить його</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Одне зі значень цього вимірювання виходить за межі того, що може зберігати файл.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>не вдалося записати %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>Не вдалося записати історію.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Не вдалося записати результат</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 — не тека</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 немає в цьому ізольованому середовищі: у ньому є лише деякі теки комп’ютера</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 — власна тека ізольованого середовища; теку комп’ютера з такою назвою від нього приховано.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>Файли іншого вимірювання в цій теці використовуються, їх не вилучено.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: скидання на носій не вдалося (%2); записане могло потрапити туди не повністю.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Підготовка: скидання на носій не вдалося (%1); записане могло потрапити туди не повністю.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Не вдалося записати файл вимірювання до тимчасової теки.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>Не вдалося додати вимірювання до історії.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 більший, ніж може бути файл вимірювання (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>не вдалося прочитати %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>стандартне введення</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>стандартне введення більше, ніж може бути файл вимірювання (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>стандартне введення — не файл вимірювання: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 — не файл вимірювання: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>Не вдалося намалювати зображення: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>Не вдалося намалювати зображення або записати його до тимчасової теки.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>Малювати в темних кольорах</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Файл вимірювання — це файл, який записує &quot;run --handoff&quot;, для одного вимірювання. Зображення — файл PNG завширшки
1616 пікселів із прозорими полями; виводиться шлях до нього. Екран не потрібен. Зображення з тією самою назвою
замінює попереднє; воно зберігається до кінця сеансу або доки система не спорожнить тимчасову теку.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Код завершення: 0 виконано, 1 не вдалося прочитати файл або створити зображення, 2 неправильний виклик.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Намалювати зображення вимірювання або порівняння кількох</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Скільки записати і прочитати (типово: усе вільне місце)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Скільки в будь-якому разі залишити вільним (типово: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Пробні блоки по всьому обсягу, за секунди: виявляє несправжню
місткість, але нічого не доводить, якщо її не виявлено</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Прочитати все ще раз через S секунд</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Вивести один об’єкт JSON: оцінку, речення і все виявлене</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Записує до прихованої теки всередині FOLDER файли, що різняться в кожному блоці, зчитує їх в обхід кешу системи,
повністю порівнює і вилучає, зокрема після Ctrl+C. Ваших файлів це не зачіпає, але на пристрої з несправжньою місткістю
кожен запис понад справжній розмір може знищити дані, що там лежать, як і будь-яке його використання. --quick записує
лише пробні блоки. Файли примусово завершеної перевірки вилучить наступне вимірювання або перевірка у FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES — просто цифри або цифри з K, M, G, T (KiB, MiB, GiB, TiB: крок 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Код завершення: 0 негараздів не виявлено, 1 збій, 2 неправильний виклик, 3 виявлено дефекти, 130 зупинено
сигналом; виявлене до цього часу виводиться.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Перевірити, чи вміщує том заявлене і чи зберігає записане</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>У вигляді text (типово), markdown, csv або json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Дозволити --output замінювати файл із будь-яким вмістом</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Вивести відомості одним об’єктом JSON</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Вивести список одним масивом JSON</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Нічого нікуди не записується. Чого система не повідомляє, те позначено як &quot;--&quot; або &quot;невідомо&quot; і не входить до
об’єкта JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Кожну файлову систему вказано один раз, із найкоротшою точкою монтування. Те, що система, її пакунки та
контейнери монтують для себе, пропущено. Для сервера, який не відповів вчасно, місткість не вказано.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>Накопичувач лише опитується: сплячий не пробуджується, і нічого в ньому не вмикається. Звідки взято відомості
про його стан або чому їх немає, повідомляє &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Показати, на чому лежить FOLDER: том, файлову систему, накопичувач і його стан</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Показати список змонтованих томів</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Вивести стан накопичувача, на якому лежить FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Використання: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Показати цю довідку</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick у терміналі: наскільки швидкий диск; вимірюється на ньому самому, слідів не лишається.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Показати цю довідку, а після команди — її параметри</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Показати версію</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>Файл, який записує &quot;export&quot;</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Дозволити &quot;delete&quot; вилучити всі вимірювання</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION — одне з</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>рядок на кожне вимірювання, спершу нові; починається з його назви (типово)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>вивести вимірювання, як &quot;show&quot;, у форматі з --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>записати вимірювання до FILE з --output, у форматі з --format або за назвою FILE: .csv, .json, .md,
.txt або .tarnwickrun для одного вимірювання</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>вилучити вимірювання без запитань і назавжди</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>RUN вказується так, як у списку, або чотирма чи більше початковими символами його id. Якщо його не вказано, ідеться
про всі вимірювання; &quot;delete&quot; тоді потребує --all. Відкрите вікно оновиться, щойно ви до нього повернетеся. --output
замінює наявний файл, лише якщо той порожній або містить вимірювання; з --force — і будь-який інший.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Код завершення: 0 виконано, 1 такого вимірювання немає або стався збій, 2 неправильний виклик.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Показати список, вміст, експортувати або вилучити вимірювання, які зберігає вікно</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES — просто цифри або цифри з K, M, G, T (KiB, MiB, GiB, TiB: крок 1024). Блоки округлюються вгору до цілих
сторінок по 4096. Типові значення — як у вікні, щоб результати можна було порівнювати, крім блоків послідовних
тестів: вікно бере &quot;Оптимальний блок обміну&quot;, який показує &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Усе записується до прихованої теки всередині FOLDER і наприкінці вилучається, зокрема після Ctrl+C. Залишене у FOLDER примусово
завершеним вимірюванням вилучається перед початком; файли, які ще використовуються, залишаються після секунди чекання.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>Файли --handoff і --card зберігаються до кінця сеансу або доки система не спорожнить тимчасову теку. --output
замінює наявний файл, лише якщо той порожній або містить вимірювання (файл вимірювання або те, що &quot;show --format&quot;
і &quot;history export&quot; записують як json чи csv); з --force — і будь-який інший. Відкрите вікно покаже вимірювання,
додане --keep, щойно ви до нього повернетеся. Якщо щось не вдається записати, значення все одно виводяться, а
вимірювання вважається невдалим.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Код завершення: 0 виконано, 1 збій, 2 неправильний виклик, 130 зупинено сигналом.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Виміряти файлову систему, на якій лежить FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Тести для виконання, завжди в цьому порядку: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (типово: усі)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Розмір файла даних або заповнення диска (типово: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>Скільки --size fill залишає вільним (типово: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Байтів на виклик, послідовний запис (типово: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Байтів на виклик, послідовне читання (типово: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Байтів на випадкову операцію (типово: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Операцій у кожному тесті випадкового доступу (типово: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Файлів у тесті операцій з файлами (типово: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Дозволити системі кешувати файл даних, як у звичайних програм</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Мінімум секунд між двома відліками (типово: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Вивести один об’єкт JSON: план, усі значення, усі відліки, дату,
теку, том, файлову систему, накопичувач, ядро, а в &quot;evidence&quot; і
&quot;remarks&quot; — що спостерігалося і що це означає</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Записати туди файл вимірювання — для вікна, для &quot;show&quot; та інших програм</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Додати вимірювання до історії вікна</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Записати файл вимірювання для вікна і для &quot;show&quot; та вивести шлях
до нього останнім рядком; з --json: як &quot;handoffFile&quot; в об’єкті</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Намалювати зображення вимірювання у світлих або темних кольорах, щоб ним
поділитися, і вивести шлях до нього останнім рядком; з --json: як &quot;cardFile&quot;</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Файл вимірювання — це файл, який записують &quot;run --handoff&quot; і &quot;run --output&quot;, для одного вимірювання. Історія
вікна (history.json) і виведення &quot;show --format json&quot; містять кілька. &quot;-&quot; — стандартне введення.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>У вигляді тексту смуги порівнюють значення кількох вимірювань: найбільше кожного виду займає всю довжину, а &quot;--&quot; стоїть там,
де у вимірювання значення немає. Рядки вміщаються в термінал або у 80 стовпців. Таблиця Markdown — для форумів. У CSV —
рядок на кожне вимірювання, з простими числами для електронних таблиць і сценаріїв. JSON — список вмісту файлів вимірювань.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Про файл, який не можна показати, повідомляє рядок у стандартному виведенні помилок, решту буде показано.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Код завершення: 0 показано всі, 1 не всі, 2 неправильний виклик.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Показати вимірювання з їхніх файлів, зокрема кілька поруч</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>в історії немає вимірювання %1</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 відповідає кільком вимірюванням</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Вимірювання</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Назва</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 з %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>Залишилося %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Зупинення, вилучення тестових файлів</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Приготування тестового файла, %1 s</translation>
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
        <translation>Накопичувач</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Усталена</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Пікова</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Найменша</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Загалом</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Операції</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Швидкість</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Найгірша</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Створення</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Опитування</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Перейменування</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Вилучення</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>не вказано RUNFILE для малювання</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 — не більше року</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>немає параметра %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 не приймає значення</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>для %1 потрібне значення: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 використовується лише з %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>для %1 потрібне ціле число від %2 до %3, а не %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>для %1 потрібна кількість байтів, наприклад 4096, 64K або 5GiB, від %2 до %3, а не %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>для %1 потрібна кількість секунд, 0 або більше, а не %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>не вказано FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>лише один FOLDER за раз</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 — це text, markdown, csv або json, а не %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>для %1 потрібна назва файла</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 не приймає аргументів</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>для %1 потрібно %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>файл вимірювання зберігає одне вимірювання, а не %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>потрібно вказати %1, якщо назва FILE не закінчується на .tarnwickrun, .csv, .json, .md або .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>для %1 потрібні RUN або %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 використовується лише з %2 і %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 приймає list, show, export і delete, а не %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>не вказано команди; див. %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>немає команди %1; див. %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>не вказано FOLDER для вимірювання</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>не вказано FOLDER для перевірки</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>лише один FOLDER за раз, без %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>назва FOLDER порожня</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: немає тесту %2, є лише %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 — це light або dark, а не %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>не вказано FILE для показу</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Попередження</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Усе вільне місце</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <translation>%1&#xa0;% перевірки</translation>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>Від %1 до %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
        <translation>Накопичувач %1 °C</translation>
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
        <translation>виконується</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>очікує</translation>
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
        <translation>Залишилося кілька секунд</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>До кінця тесту залишилося кілька секунд</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Залишилося близько %n s</numerusform>
            <numerusform>Залишилося близько %n s</numerusform>
            <numerusform>Залишилося близько %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>До кінця тесту залишилося близько %n s</numerusform>
            <numerusform>До кінця тесту залишилося близько %n s</numerusform>
            <numerusform>До кінця тесту залишилося близько %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Залишилося близько %n min</numerusform>
            <numerusform>Залишилося близько %n min</numerusform>
            <numerusform>Залишилося близько %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>До кінця тесту залишилося близько %n min</numerusform>
            <numerusform>До кінця тесту залишилося близько %n min</numerusform>
            <numerusform>До кінця тесту залишилося близько %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Залишилося близько %n h</numerusform>
            <numerusform>Залишилося близько %n h</numerusform>
            <numerusform>Залишилося близько %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>До кінця тесту залишилося близько %n h</numerusform>
            <numerusform>До кінця тесту залишилося близько %n h</numerusform>
            <numerusform>До кінця тесту залишилося близько %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 з %2 операції</numerusform>
            <numerusform>%1 з %2 операцій</numerusform>
            <numerusform>%1 з %2 операцій</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 з %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Приготування…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Порівняти</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Спорожнити</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Порівняти (%n)</numerusform>
            <numerusform>Порівняти (%n)</numerusform>
            <numerusform>Порівняти (%n)</numerusform>
        </translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>За час тесту до диска дійшло не більше %1 записаного.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>За час тесту до диска дійшло %1 записаного.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>З диска надійшло не більше %1 прочитаного.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>З диска надійшло %1 прочитаного.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Не все записане вдалося скинути на диск: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>Тестовий файл не вдалося скинути на диск: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 на перших %2, потім %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>Накопичувач нагрівся до %1 через %2 (межа %3), і відтоді швидкість була на %4 нижчою.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Одна пауза понад 1 s: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 пауза понад 1 s, найдовша — %2.</numerusform>
            <numerusform>%1 паузи понад 1 s, найдовша — %2.</numerusform>
            <numerusform>%1 пауз понад 1 s, найдовша — %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>Під час тесту інші програми прочитали й записали %1 на тому самому диску.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>З’єднання %1 накопичувача працює на %2, а накопичувач здатен на %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>Розділ починається зі зміщенням %1 усередині фізичного блоку в %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>На томі було вільно лише %1.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Дані тесту (%1) можуть уміститися в кеш (%2).</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>Комп’ютер працював від акумулятора.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>Процесор було налаштовано на заощадження енергії.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>Комп’ютер працював від акумулятора, а процесор було налаштовано на заощадження енергії.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>Файлова система записує зміни в нові місця й обчислює контрольні суми даних.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>Файлова система записує зміни в нові місця.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Увімкніть «В обхід кешу». Якщо вже ввімкнено, виберіть розмір, більший за обсяг пам’яті комп’ютера.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Перш ніж довіряти накопичувачу дані, перегляньте його стан S.M.A.R.T. і журнал системи.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Дані пройшли через кеш, хоча системі було вказано його оминути.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Виберіть розмір, більший за обсяг пам’яті комп’ютера, або протестуйте базовий диск через іншу файлову систему.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Коли за раз передається більше, розраховуйте на меншу швидкість.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Забезпечте накопичувачу обдування або радіатор і повторіть вимірювання, коли він охолоне.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Повторіть вимірювання. Якщо паузи повернуться, перевірте стан S.M.A.R.T. накопичувача та його кабель.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Повторіть вимірювання, коли диск більше нічим не зайнятий.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Спробуйте інший порт, слот або кабель.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Створіть розділ наново, з початком, кратним 1 MiB. Дані на ньому буде стерто.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Звільніть місце: багато накопичувачів і файлових систем сповільнюються, коли заповнені.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Виберіть більший розмір і ввімкніть «В обхід кешу».</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Повторіть вимірювання з живленням від мережі та з вимкненим енергозаощадженням.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>Диск, на якому розташовано цей том, не видно, тому невідомо, що робив він сам.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Цей том зберігає файли в пам’яті; жодного диска не виміряно.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Виберіть теку на диску.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Цей том — файл на іншому томі.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Щоб виміряти саме той том, виберіть теку на ньому.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>Це диск віртуальної машини, і її хост може його кешувати.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>Файлова система стискає дані. Дані тесту не стискаються, тому інші файли можуть виявитися швидшими.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>Файлова система записує дані двічі, спершу до журналу.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Ця тека доступна через портал робочого столу — програму, робота якої входить до значень.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Дозвольте ізольованому середовищу доступ до самої теки й виберіть її знову.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Недійсно</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Обережно</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>До відома</translation>
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
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Буде долучено: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — порівняння</translation>
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
        <translation>Повідомити на сайті:</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Затінено останню третину кожного тесту, її медіана — усталена швидкість. Трикутники: пікова і найменша швидкість.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Вимірювання</translation>
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
        <translation>Накопичувач</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (недійсно)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Примітки</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n вимірювання</numerusform>
            <numerusform>Ondel Tarnwick — %n вимірювання</numerusform>
            <numerusform>Ondel Tarnwick — %n вимірювань</numerusform>
        </translation>
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
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Значення не з диска: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Значення не з диска: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Випадкове читання %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Випадковий запис %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Операції з файлами</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Читання/запис</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Вільно</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Кеш</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>В обхід</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>З кешем</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Триває перевірка місткості</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Триває вимірювання</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>запис %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>читання %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Вимірювання не вдалося</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Вимірювання завершено</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Перевірка місткості не вдалася</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Перевірку місткості завершено</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Запис</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Випадкове читання</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Випадковий запис</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Оп. з файлами</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>пік %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>найменша %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, пік</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, найменша</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, затримка</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>Про ці значення</translation>
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
        <translation>Мережевий сервер</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Зовнішній накопичувач</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Мережевий том</translation>
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
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  (увага)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Накопичувач</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Інтерфейс</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Звіт S.M.A.R.T. програми Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
        <translation>Блок вип. доступу</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>В обхід кешу</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  оптимальний</translation>
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
        <extracomment>Button: opens a menu</extracomment>
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
    <name>SharedImageText</name>
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
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>TargetFactsText</name>
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
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 зовнішній</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 внутрішній</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 знімний</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 мережевий</translation>
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
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 символ</numerusform>
            <numerusform>%1 символи</numerusform>
            <numerusform>%1 символів</numerusform>
        </translation>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Вільно</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Невідомо: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Немає значень S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Виберіть теку на томі для тестування (у ній створюється тимчасова робоча тека, яку потім буде вилучено).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Вибрати</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>уже відкрите вікно не відповідає; воно виконає запитане, щойно зможе.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>уже відкрите вікно (процес %1) не відповідає; воно виконає запитане, щойно зможе.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Читання</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>Як у стільничному середовищі</translation>
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
        <translation>Мова</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Мова вікна</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>Мова вікна зміниться під час наступного запуску Tarnwick.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Зображення для поширення англійською</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Якщо вимкнено, їхні тексти — мовою вікна.</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: від %2 до %3 %6 за %4, останнє значення %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Вимірювань поки немає.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Мінімізувати</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Відновити</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Максимізувати</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Закрити</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>Вилучено %n вимірювання</numerusform>
            <numerusform>Вилучено %n вимірювання</numerusform>
            <numerusform>Вилучено %n вимірювань</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Вимірювання вилучено</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2&#xa0;%</translation>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
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
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Внутрішній</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Зовнішній</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Знімний</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Мережевий</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Том</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Корінь</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Спільна тека</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Заповнити диск</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Усталена: медіана швидкості за останню третину тесту, на цьому рівні тримається тривале копіювання; пікова і найменша — найшвидша і найповільніша десята частка секунди тесту.</translation>
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
        <translation>Створює, опитує, перейменовує і вилучає порожні файли; значення — скільки їх створено за секунду.</translation>
    </message>
</context>
</TS>
