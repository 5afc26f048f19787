<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>عن %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>ادعم %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>شكر وتقدير</translation>
    </message>
</context>
<context>
    <name>AppDelegateText</name>
    <message>
        <source>%1 % – %2</source>
        <extracomment>The title of the window during a run: how much is done, and the program&apos;s name</extracomment>
        <translation>%1% – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <extracomment>Button: opens a menu</extracomment>
        <translation>المزيد</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>غير متاح الآن</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>غير متاح الآن</translation>
    </message>
</context>
<context>
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>لا توجد مساحة كافية: يلزم %1، والمتاح %2 فقط.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>خطأ إدخال/إخراج: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>تعذرت الكتابة هناك. ربما كانت وحدة التخزين للقراءة فقط، أو كان المجلد لا يسمح بذلك.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>ملف الاختبار أصغر من حجم الكتلة العشوائية.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>كتابة تتابعية</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>قراءة تتابعية</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>قراءة عشوائية</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>كتابة عشوائية</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>عمليات الملفات</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>ملف/ثانية</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>الأسوأ %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>أُزيل المجلد أو فُصلت وحدة تخزينه أثناء القياس.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>فُصلت وحدة التخزين، أو لم يعد خادومها موجودًا.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>أبلغ المحرك عن خطأ، أو فُصل أثناء القياس.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>لا يمكن سوى القراءة من وحدة التخزين: تتحول الأنظمة إلى ذلك عندما تجد خطأ فيها.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>امتلأت وحدة التخزين أثناء القياس، أو نفدت حصتك منها.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>لا يسمح نظام الملفات، أو حدٌّ لهذه الجلسة، بملفات بهذا الحجم.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>تغيّرت أذونات المجلد أثناء القياس، أو يمنع النظام ذلك هناك.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>لا توجد ذاكرة كافية لكتل بهذا الحجم.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>عدد الملفات المفتوحة الآن كبير جدًا؛ أغلق بعض البرامج وحاول مجددًا.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
        <translation>الذروة %1
الأدنى %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>الذروة %1 · الأدنى %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>تعذر الوصول إلى الخادوم. تحقق من اتصالك وحاول مجددًا.</translation>
    </message>
    <message>
        <source>The answer&apos;s head is too long</source>
        <translation>ترويسة الرد أطول مما ينبغي</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>لا يوجد خادوم وكيل يمكن استخدامه</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>يتعذر تحميل libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>لا يمكن إرسال البلاغ من هذه البيئة المعزولة، إذ لا شبكة فيها.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
        <translation>رفض الخادوم البلاغ (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>قدرات وحدة التخزين</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>هل سعة وحدة التخزين كما تُعلن، وهل تحفظ ما يُكتب عليها؟</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>المساحة المراد فحصها</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>قراءة ثانية</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>سريع: عيّنات فقط</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>ابدأ الفحص</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>احفظ التقرير…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>انسخ التقرير نصًا</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>فحص جديد</translation>
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
        <translation>أوقف</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>CapacityPane</name>
    <message>
        <source>Capacity of %1</source>
        <translation>سعة %1</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>سعة وحدة التخزين</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>عُد إلى القياسات</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>خريطة المساحة المفحوصة</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>السرعة على امتداد المساحة، حتى %1MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>قراءة</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>ما لا يكشفه أي فحص: هل المساحة التي تشغلها ملفاتك سليمة، وما الذي يحتفظ به المحرك احتياطيًا، وهل ستدوم الكتلة التي أُصلحت.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>لا يحجز نظام الملفات هذا مساحة دون الكتابة فيها، لذا لم يمكن توزيع العيّنات. لا تدل النتيجة على سعة وحدة التخزين: أجرِ فحصًا غير سريع.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>لا يكتب الفحص السريع إلا في مواضع قليلة: ما بينها لم يُفحص.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>لا يكتب الفحص السريع إلا في مواضع قليلة. يكشف معظم السعات الزائفة في ثوانٍ؛ وعدم العثور على شيء لا يثبت شيئًا.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>فُحص أقل مما خُطط له: امتلأت وحدة التخزين قبل الأوان. ربما فقدت بيانات تخص نظام الملفات نفسه.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>فُحص أقل مما خُطط له: ربما شغلت برامج أخرى المساحة.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>تُبقي وحدة التخزين هذه ملفاتها في الذاكرة: لم يُفحص أي قرص.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>جاء من القرص %1% فقط مما قُرئ. افحص أكثر مما تتسع له ذاكرة الجهاز.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>لا يمكن رؤية القرص الذي تقع عليه وحدة التخزين هذه، لذا ربما جاء ما عاد من ذاكرة مخبئية.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>ما يُكتب بعد سعتها الفعلية يضيع، أو يتلف ما في مواضع أخرى منها. انسخ منها ما تحتاج إليه، ولا تثق بها.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>أُوقف الفحص: لا يُعرف حال ما لم تُعَد قراءته.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>لا يعيد نظام الملفات هذا ما لا يطابق المجاميع الاختبارية: لا يمكن قراءة بيانات متغيّرة عليه.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>سعة %1</translation>
    </message>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>لا تحفظ وحدة التخزين هذه سوى أول %1 مما يُكتب عليها.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>تعلن وحدة التخزين هذه عن %1، لكنها لا تحفظ سوى أول %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>تعلن وحدة التخزين هذه عن %1، لكنها لا تحفظ سوى أول %2 تقريبًا.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>عادت كتلة واحدة عند %1 متغيّرة.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>عادت %1 كتلة عند %2 متغيّرة.</numerusform>
            <numerusform>عادت %1 كتلة عند %2 متغيّرة.</numerusform>
            <numerusform>عادت كتلتان (%1) عند %2 متغيّرتين.</numerusform>
            <numerusform>عادت %1 كتل عند %2 متغيّرة.</numerusform>
            <numerusform>عادت %1 كتلة عند %2 متغيّرة.</numerusform>
            <numerusform>عادت %1 كتلة عند %2 متغيّرة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>عادت %1 كتلة متغيّرة، أولاها عند %2.</numerusform>
            <numerusform>عادت %1 كتلة متغيّرة، أولاها عند %2.</numerusform>
            <numerusform>عادت كتلتان (%1) متغيّرتين، أولاهما عند %2.</numerusform>
            <numerusform>عادت %1 كتل متغيّرة، أولاها عند %2.</numerusform>
            <numerusform>عادت %1 كتلة متغيّرة، أولاها عند %2.</numerusform>
            <numerusform>عادت %1 كتلة متغيّرة، أولاها عند %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>عاد %1 من أصل %2 متغيّرًا، وأول كتلة عند %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>كانت كتلة واحدة عند %1 صحيحة في البداية، ثم تغيّرت لاحقًا.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>كانت %1 كتلة عند %2 صحيحة في البداية، ثم تغيّرت لاحقًا.</numerusform>
            <numerusform>كانت %1 كتلة عند %2 صحيحة في البداية، ثم تغيّرت لاحقًا.</numerusform>
            <numerusform>كانت كتلتان (%1) عند %2 صحيحتين في البداية، ثم تغيّرتا لاحقًا.</numerusform>
            <numerusform>كانت %1 كتل عند %2 صحيحة في البداية، ثم تغيّرت لاحقًا.</numerusform>
            <numerusform>كانت %1 كتلة عند %2 صحيحة في البداية، ثم تغيّرت لاحقًا.</numerusform>
            <numerusform>كانت %1 كتلة عند %2 صحيحة في البداية، ثم تغيّرت لاحقًا.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>كانت %1 كتلة صحيحة في البداية ثم تغيّرت لاحقًا، أولاها عند %2.</numerusform>
            <numerusform>كانت %1 كتلة صحيحة في البداية ثم تغيّرت لاحقًا، أولاها عند %2.</numerusform>
            <numerusform>كانت كتلتان (%1) صحيحتين في البداية ثم تغيّرتا لاحقًا، أولاهما عند %2.</numerusform>
            <numerusform>كانت %1 كتل صحيحة في البداية ثم تغيّرت لاحقًا، أولاها عند %2.</numerusform>
            <numerusform>كانت %1 كتلة صحيحة في البداية ثم تغيّرت لاحقًا، أولاها عند %2.</numerusform>
            <numerusform>كانت %1 كتلة صحيحة في البداية ثم تغيّرت لاحقًا، أولاها عند %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>كان %1 من أصل %2 صحيحًا في البداية ثم تغيّر لاحقًا، وأول كتلة عند %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>تعذرت قراءة كتلة واحدة عند %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>تعذرت قراءة %1 كتلة عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتلة عند %2.</numerusform>
            <numerusform>تعذرت قراءة كتلتين (%1) عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتل عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتلة عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتلة عند %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>تعذرت قراءة %1 كتلة، أولاها عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتلة، أولاها عند %2.</numerusform>
            <numerusform>تعذرت قراءة كتلتين (%1)، أولاهما عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتل، أولاها عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتلة، أولاها عند %2.</numerusform>
            <numerusform>تعذرت قراءة %1 كتلة، أولاها عند %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>تعذرت قراءة %1 من أصل %2، وأول كتلة عند %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>تعذرت كتابة كتلة واحدة عند %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>تعذرت كتابة %1 كتلة عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتلة عند %2.</numerusform>
            <numerusform>تعذرت كتابة كتلتين (%1) عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتل عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتلة عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتلة عند %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>تعذرت كتابة %1 كتلة، أولاها عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتلة، أولاها عند %2.</numerusform>
            <numerusform>تعذرت كتابة كتلتين (%1)، أولاهما عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتل، أولاها عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتلة، أولاها عند %2.</numerusform>
            <numerusform>تعذرت كتابة %1 كتلة، أولاها عند %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>تعذرت كتابة %1 إلى جانب %2 المكتوبة، وأول كتلة عند %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>تطلبت كتلة واحدة عند %1 محاولة ثانية لكتابتها أو قراءتها.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>تطلبت %1 كتلة عند %2 محاولة ثانية لكتابتها أو قراءتها.</numerusform>
            <numerusform>تطلبت %1 كتلة عند %2 محاولة ثانية لكتابتها أو قراءتها.</numerusform>
            <numerusform>تطلبت كتلتان (%1) عند %2 محاولة ثانية لكتابتهما أو قراءتهما.</numerusform>
            <numerusform>تطلبت %1 كتل عند %2 محاولة ثانية لكتابتها أو قراءتها.</numerusform>
            <numerusform>تطلبت %1 كتلة عند %2 محاولة ثانية لكتابتها أو قراءتها.</numerusform>
            <numerusform>تطلبت %1 كتلة عند %2 محاولة ثانية لكتابتها أو قراءتها.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>تطلبت %1 كتلة محاولة ثانية لكتابتها أو قراءتها، أولاها عند %2.</numerusform>
            <numerusform>تطلبت %1 كتلة محاولة ثانية لكتابتها أو قراءتها، أولاها عند %2.</numerusform>
            <numerusform>تطلبت كتلتان (%1) محاولة ثانية لكتابتهما أو قراءتهما، أولاهما عند %2.</numerusform>
            <numerusform>تطلبت %1 كتل محاولة ثانية لكتابتها أو قراءتها، أولاها عند %2.</numerusform>
            <numerusform>تطلبت %1 كتلة محاولة ثانية لكتابتها أو قراءتها، أولاها عند %2.</numerusform>
            <numerusform>تطلبت %1 كتلة محاولة ثانية لكتابتها أو قراءتها، أولاها عند %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>تطلب %1 من أصل %2 محاولة ثانية للكتابة أو القراءة، وأول كتلة عند %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>عادت كتلة واحدة عند %1 مخالفة لما كُتب.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>عادت %1 كتلة عند %2 مخالفة لما كُتب.</numerusform>
            <numerusform>عادت %1 كتلة عند %2 مخالفة لما كُتب.</numerusform>
            <numerusform>عادت كتلتان (%1) عند %2 مخالفتين لما كُتب.</numerusform>
            <numerusform>عادت %1 كتل عند %2 مخالفة لما كُتب.</numerusform>
            <numerusform>عادت %1 كتلة عند %2 مخالفة لما كُتب.</numerusform>
            <numerusform>عادت %1 كتلة عند %2 مخالفة لما كُتب.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>عادت %1 كتلة مخالفة لما كُتب، أولاها عند %2.</numerusform>
            <numerusform>عادت %1 كتلة مخالفة لما كُتب، أولاها عند %2.</numerusform>
            <numerusform>عادت كتلتان (%1) مخالفتين لما كُتب، أولاهما عند %2.</numerusform>
            <numerusform>عادت %1 كتل مخالفة لما كُتب، أولاها عند %2.</numerusform>
            <numerusform>عادت %1 كتلة مخالفة لما كُتب، أولاها عند %2.</numerusform>
            <numerusform>عادت %1 كتلة مخالفة لما كُتب، أولاها عند %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>عاد %1 من أصل %2 مخالفًا لما كُتب، وأول كتلة عند %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>قبل إيقاف الفحص، وُجدت كتل عادت مخالفة لما كُتب، أولاها عند %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>أمكنت الكتابة على وحدة التخزين حتى %1 من أصل %2، ثم رفضت كل ما بعد ذلك.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>أُوقف الفحص قبل إعادة قراءة أي شيء.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>أُوقف الفحص بعد أن عاد %1 من أصل %2 كما كُتب.</translation>
    </message>
    <message>
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>لا يستطيع نظام الملفات هذا توزيع العيّنات: فُحص %1 فقط في موضع واحد، وهو يحفظ ما كُتب فيه.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>تحفظ العيّنات الموزعة على %1 ما كُتب فيها، وهذا ليس دليلًا قاطعًا.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>تحفظ العيّنات الموزعة على %1 من المساحة الحرة ما كُتب فيها، وهذا ليس دليلًا قاطعًا.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>نفدت حصتك من وحدة التخزين بعد %1 من أصل %2؛ وهذا الجزء يحفظ ما كُتب فيه.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>امتلأت وحدة التخزين بعد %1 من أصل %2؛ وهذا الجزء يحفظ ما كُتب فيه.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>عاد كامل %1 كما كُتب، لكن معظمه من الذاكرة: وهذا لا يدل على الكثير بشأن القرص.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>كامل %1 يحفظ ما كُتب فيه.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>كامل %1 من المساحة الحرة يحفظ ما كُتب فيه.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>السعة المعلنة</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>السعة الفعلية</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>نحو %1</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>المساحة المراد فحصها</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 من المساحة الحرة</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>العيّنات</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1، واحدة كل %2</translation>
    </message>
    <message>
        <source>In one place</source>
        <translation>في موضع واحد</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>كان المحتوى صحيحًا عند القراءة الأولى.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>عند %1 (%2): انقلب بت واحد.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>عند %1 (%2): انقلب %3 بت.</numerusform>
            <numerusform>عند %1 (%2): انقلب %3 بت.</numerusform>
            <numerusform>عند %1 (%2): انقلب بتّان (%3).</numerusform>
            <numerusform>عند %1 (%2): انقلبت %3 بتات.</numerusform>
            <numerusform>عند %1 (%2): انقلب %3 بتًا.</numerusform>
            <numerusform>عند %1 (%2): انقلب %3 بت.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>السبب غير معروف</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>عند %1 (%2): تعذرت القراءة (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>عند %1 (%2): تعذرت الكتابة (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>عند %1 (%2): لم تنجح الكتابة أو القراءة إلا في محاولة ثانية (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>عند %1 (%2): عاد ما كُتب في موضع آخر.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>عند %1 (%2): عادت الكتلة المكتوبة عند %3 مرة بعد مرة.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>عند %1 (%2): عاد ما كُتب عند %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>عند %1 (%2): عادت أصفار.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>عند %1 (%2): عاد محتوى لم يُكتب هناك قط.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>المحرك</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>مكتوب</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>أُعيدت قراءته</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>قُرئ مجددًا بعد %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>كما كُتب</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>متغيّر</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>تعذرت قراءته</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>تعذرت كتابته</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>في محاولة ثانية فقط</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>قُرئ من القرص</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>وفي موضع آخر.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>وفي %1 موضع آخر.</numerusform>
            <numerusform>وفي %1 موضع آخر.</numerusform>
            <numerusform>وفي موضعين آخرين (%1).</numerusform>
            <numerusform>وفي %1 مواضع أخرى.</numerusform>
            <numerusform>وفي %1 موضعًا آخر.</numerusform>
            <numerusform>وفي %1 موضع آخر.</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>يجري التحضير…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>كتابة العيّنات</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>الكتابة</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>إعادة القراءة</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>الانتظار</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>القراءة مجددًا</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>غير مكتوب</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>تتعذر قراءته</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>تتعذر كتابته</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>قراءة</translation>
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
        <translation>الاستخدام: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
يفتح محلل سرعة الأقراص ووحدات التخزين، ويختار المجلد الأول، ويعرض ملفات القياس (*.tarnwickrun).
  --check-capacity  انتقل إلى فحص وحدة التخزين التي فيها ذلك المجلد
  --choose-folder   اسأل عن مجلد
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 ليس مجلدًا ولا ملف قياس يمكن فتحه.</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>قارن مع آخر قياس لوحدة التخزين هذه</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>الكتابة عبر الزمن</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>القراءة عبر الزمن</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>المرجع</translation>
    </message>
    <message>
        <source>%1, %2: %3 %4</source>
        <extracomment>%1 is what was measured, %2 the name of a run, %3 the figure, %4 its unit</extracomment>
        <translation>%1، %2: %3 %4</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>مقارنة القياسات</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>مقارنة %n قياس أداء</numerusform>
            <numerusform>مقارنة قياس أداء واحد (%n)</numerusform>
            <numerusform>مقارنة قياسي أداء (%n)</numerusform>
            <numerusform>مقارنة %n قياسات أداء</numerusform>
            <numerusform>مقارنة %n قياس أداء</numerusform>
            <numerusform>مقارنة %n قياس أداء</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>امسح الرمز لتجربته</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>ليست قيمة القرص</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>مقارنة %n قياس</numerusform>
            <numerusform>مقارنة قياس واحد (%n)</numerusform>
            <numerusform>مقارنة قياسين (%n)</numerusform>
            <numerusform>مقارنة %n قياسات</numerusform>
            <numerusform>مقارنة %n قياسًا</numerusform>
            <numerusform>مقارنة %n قياس</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>شارك صورة المقارنة</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>الفروق عن</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>قراءة عشوائية</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>كتابة عشوائية</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>عمليات الملفات</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>عملية/ثانية</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 حرة</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>اختبار ملء القرص</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>اختبار %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>قراءة/كتابة %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>كتابة %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>قراءة %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>عشوائي %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>بلا ذاكرة مخبئية</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>مع ذاكرة مخبئية</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>اكتمل</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>أرفق معلومات التشخيص</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>النشاط الأخير في هذه الجلسة. تُستبدل أسماء الملفات والخواديم والحسابات برموز لا تكشف هويتها قبل تدوين أي شيء.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>اعرض…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
    <message>
        <source>Working folder:</source>
        <translation>مجلد العمل:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>مؤقت، يُكتب هناك ثم يُزال</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>احفظ باسم</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>افتح</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>قياسات Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>«%1» تالف أو ليس قياسًا من Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>«%1» ليس مجلدًا ولا ملف قياس يمكن فتحه.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>«%1» و%2 ملف آخر تالفة أو ليست قياسات من Tarnwick.</numerusform>
            <numerusform>«%1» وملف آخر (%2) تالفان أو ليسا قياسين من Tarnwick.</numerusform>
            <numerusform>«%1» وملفان آخران (%2) تالفة أو ليست قياسات من Tarnwick.</numerusform>
            <numerusform>«%1» و%2 ملفات أخرى تالفة أو ليست قياسات من Tarnwick.</numerusform>
            <numerusform>«%1» و%2 ملفًا آخر تالفة أو ليست قياسات من Tarnwick.</numerusform>
            <numerusform>«%1» و%2 ملف آخر تالفة أو ليست قياسات من Tarnwick.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>«%1» و%2 عنصر آخر ليست مجلدات ولا ملفات قياس يمكن فتحها.</numerusform>
            <numerusform>«%1» وعنصر آخر (%2) ليسا مجلدين ولا ملفي قياس يمكن فتحهما.</numerusform>
            <numerusform>«%1» وعنصران آخران (%2) ليست مجلدات ولا ملفات قياس يمكن فتحها.</numerusform>
            <numerusform>«%1» و%2 عناصر أخرى ليست مجلدات ولا ملفات قياس يمكن فتحها.</numerusform>
            <numerusform>«%1» و%2 عنصرًا آخر ليست مجلدات ولا ملفات قياس يمكن فتحها.</numerusform>
            <numerusform>«%1» و%2 عنصر آخر ليست مجلدات ولا ملفات قياس يمكن فتحها.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>أخفِ الاختبارات والإعدادات</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>أظهر الاختبارات والإعدادات</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>غيّر اسم هذا التقرير. يظهر الاسم أيضًا في الصور التي تشاركها.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>عنوان التقرير</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>شارك صورة التقرير</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>احذف القياس</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>اطوِ</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>ليست قيمة القرص</translation>
    </message>
</context>
<context>
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>القياس: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>ليست قيمة القرص</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>أتريد ملء القرص؟</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>يكتب الاختبار حتى لا يبقى سوى %1 من المساحة الحرة، ثم يزيل كل ما كتبه. يستغرق هذا وقتًا طويلًا على محرك كبير، ولن يجد أي برنامج آخر مساحة كافية عليه حتى ينتهي الاختبار.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>املأ القرص</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>أظهر في المجلد</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>أظهر في المجلد: %1</translation>
    </message>
</context>
<context>
    <name>Format</name>
    <message>
        <source>%1 %</source>
        <extracomment>A percentage: %1 is the number</extracomment>
        <translation>%1%</translation>
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
        <translation>الفحوص السابقة</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>يوشك على التعطل</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>سليم</translation>
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
        <translation>تحذير حرج</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة الحرارة</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>العمر المستهلك</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>الاحتياطي المتاح</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>عتبة الاحتياطي</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>مدة التشغيل</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>مرات التشغيل</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>مرات تحميل الرؤوس</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>مرات الإيقاف غير الآمن</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>البيانات المكتوبة</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>البيانات المقروءة</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>أوامر المضيف للقراءة</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>أوامر المضيف للكتابة</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>مدة انشغال المتحكم</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>قطاعات معاد تخصيصها</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>قطاعات معلّقة</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>قطاعات غير قابلة للتصحيح</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>أخطاء مبلَّغ عنها غير قابلة للتصحيح</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>إعادات محاولة الدوران</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>أخطاء CRC في الواجهة</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>أخطاء الوسيط</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>مدخلات سجل الأخطاء</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>الأقراص</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>الاحتياطي دون العتبة</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>تراجع الموثوقية</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>للقراءة فقط</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>فشل حفظ الذاكرة</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 سنة</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>أجاب %1 من أصل %2 من الأقراص</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>لا جهاز خلف هذا المسار</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>لا قرص خلف %1</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 ليس جهاز كتل</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>لا يبيّن %1 هل هو في وضع السكون، لذا تُرك وشأنه</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 في وضع السكون وتُرك وشأنه</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>لا يدعم %1 تقنية S.M.A.R.T.، أو أنها معطّلة</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>ليس في %1 واجهة S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>لا يمرّر %1 أوامر S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>لا يقدّم %1 سجل سلامة NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>لا يُسمح بسؤال %1 إلا لمدير النظام</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 خارج متناول هذه العملية</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>لا يجيب UDisks2</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>لا يجيب UDisks2 بشأن %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>لا يجيب %1</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>لا يقرأ UDisks2 %1 سلامة محركات NVMe (يقرؤها الإصدار 2.10)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>ليس لدى UDisks2 قيم سلامة عن %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>ليس لدى UDisks2 حكم على سلامة %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>لا يعرف UDisks2 محركًا خلف %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>ATA S.M.A.R.T. من %1، وقد أعطى حكمه دون قيم</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>ATA S.M.A.R.T. من %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>سجل سلامة NVMe من %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 عن %1، قُرئ قبل %2 د</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 عن %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Two sentences: how many disks answered, and why others did not</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>Two sentences, the first on one disk and the second on another</extracomment>
        <translation>%1؛ %2</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>Two sentences: why a disk gives no figures itself, and why the system&apos;s service gives none</extracomment>
        <translation>%1، و%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 يوم</numerusform>
            <numerusform>يوم واحد (%1)</numerusform>
            <numerusform>يومان (%1)</numerusform>
            <numerusform>%1 أيام</numerusform>
            <numerusform>%1 يومًا</numerusform>
            <numerusform>%1 يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>يوشك على التعطل</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>سليم</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation>ال&amp;سجل</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>انسخ نصًا</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>انسخ جدولًا بصيغة Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>احفظ القياسات…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>صدّر CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>قراءة</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>احذف %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>احذف هذا القياس</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>يجري الإيقاف وإزالة الملفات</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>تعذر إخراج نتيجة الفحص بصيغة JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>حساس لحالة الأحرف</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>يحفظ حالة الأحرف</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>ملفات متناثرة</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>وصلات صلبة</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>وصلات رمزية</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>سمات موسّعة</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>تدفقات مسماة</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>قوائم التحكم في الوصول</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>استنساخ</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>لقطات</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>سجل عمليات</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>سجل العمليات مفعّل</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>مختوم</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>السعة</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>المتاح</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>للقراءة فقط</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>معمّى</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>نقطة الوصل</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>حجم الكتلة</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>أمثل حجم نقل</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>أقصى طول اسم</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>أقصى طول مسار</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>أقصى عدد وصلات</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>طريقة الاتصال</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>الواجهة</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(انتبه)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>نظام الملفات</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>المحرك</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>السلامة</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>لا قيم S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>تعذر تشغيل %1 المرفق مع النافذة</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>لا يجيب %1</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 مجلد</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 موجود ولا يحوي قياسات؛ الخيار --force يستبدله</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>إحدى قيم هذا القياس خارج ما يتسع له الملف.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>تعذرت كتابة %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>تعذرت كتابة السجل.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>تعذرت كتابة النتيجة</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ليس مجلدًا</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 غير موجود في هذه البيئة المعزولة، إذ ليس فيها إلا بعض مجلدات الجهاز</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 يخص البيئة المعزولة نفسها؛ ومجلد الجهاز الذي يحمل هذا الاسم مخفي عنها.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>ملفات قياس آخر في هذا المجلد قيد الاستخدام ولم تُزل.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: فشل التفريغ إلى الوسيط (%2)؛ ربما لم يصل إليه كل ما كُتب.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>التحضير: فشل التفريغ إلى الوسيط (%1)؛ ربما لم يصل إليه كل ما كُتب.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>تعذرت كتابة ملف القياس في مجلدك المؤقت.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>تعذرت إضافة القياس إلى السجل.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 أكبر من الحد الأقصى لملف القياس (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>تعذرت قراءة %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>الدخل القياسي</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>الدخل القياسي أكبر من الحد الأقصى لملف القياس (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>الدخل القياسي ليس ملف قياس: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 ليس ملف قياس: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>تعذر رسم الصورة: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>تعذر رسم الصورة، أو تعذرت كتابتها في مجلدك المؤقت.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>ارسمها بالألوان الداكنة</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>ملف القياس هو ما يكتبه الأمر &quot;run --handoff&quot; لقياس واحد. الصورة ملف PNG بعرض 1616 بكسل وبهامش
شفاف؛ ويُطبع مسارها. لا حاجة إلى شاشة. تحل الصورة محل صورة سابقة لها العنوان نفسه؛
وتبقى حتى تنتهي جلستك، أو حتى يفرّغ النظام مجلده المؤقت.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>حالة الخروج: 0 تم، 1 تعذرت قراءة ملف أو إنشاء الصورة، 2 استخدام خاطئ.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>ارسم صورة للمشاركة من قياس، أو من عدة قياسات مقارَنة</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>مقدار ما يُكتب ويُقرأ مجددًا (المبدئي: كل المساحة الحرة)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>مقدار ما يبقى حرًا في كل الأحوال (المبدئي: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>عيّنات على امتداد المدى في ثوانٍ: تكشف السعة الزائفة،
ولا تثبت شيئًا إن لم تعثر عليها</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>اقرأ كل شيء مرة أخرى بعد S ثانية</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>اطبع كائن JSON واحدًا: الحكم والجملة وكل ما عُثر عليه</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>يكتب في مجلد مخفي داخل FOLDER ملفات تختلف في كل كتلة، ثم يقرؤها متجاوزًا الذاكرة المخبئية للنظام،
ويقارنها كلها ويزيلها، حتى بعد Ctrl+C. لا يُمس أي من ملفاتك؛ لكن على جهاز سعته زائفة قد تتلف
كل كتابة تتجاوز سعته الفعلية ما هناك، شأن أي استخدام آخر له.
الخيار --quick يكتب عيّنات فقط. ملفات الفحص الذي أُنهي قسرًا يزيلها القياس أو الفحص التالي في FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>القيمة BYTES أرقام مجردة، أو أرقام مع K أو M أو G أو T (أي KiB وMiB وGiB وTiB: بخطوات من 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>حالة الخروج: 0 لم يُعثر على خلل، 1 فشل، 2 استخدام خاطئ، 3 عُثر على عيوب، 130 أوقفته إشارة؛
ويُطبع ما عُثر عليه حتى ذلك الحين.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>افحص هل سعة وحدة التخزين كما تُعلن وهل تحفظ ما يُكتب عليها</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>بصيغة text (المبدئي) أو markdown أو csv أو json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>اسمح للخيار --output باستبدال ملف مهما كان محتواه</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>اطبع المعلومات في كائن JSON واحد</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>اطبع القائمة في مصفوفة JSON واحدة</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>لا يُكتب شيء في أي مكان. ما لا يخبر به النظام يظهر &quot;--&quot; أو «غير معروف»، ولا يُدرج في كائن
JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>يُدرج كل نظام ملفات مرة واحدة، عند أقصر نقطة وصل له. لا يُدرج ما يصله النظام وحزمه وحاوياته
لأغراضها الخاصة. الخادوم الذي لا يجيب في الوقت المناسب لا تظهر سعته.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>يُكتفى بالنظر إلى المحرك: لا يُوقظ إن كان ساكنًا ولا يُفعّل فيه شيء. مصدر معلومات السلامة، أو سبب غيابها،
يخبر به الأمر &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>اعرض ما يحوي FOLDER: وحدة التخزين ونظام الملفات والمحرك وسلامته</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>اسرد وحدات التخزين الموصولة</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>اطبع سلامة المحرك الذي يحوي FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>الاستخدام: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>اعرض هذا النص</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>برنامج Ondel Tarnwick في الطرفية: سرعة القرص مقيسة بالكتابة عليه، ثم يُزال ما كُتب.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>اعرض هذا النص، أو خيارات الأمر إن جاء بعد أمر</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>اعرض الإصدار</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>الملف الذي يكتبه الأمر &quot;export&quot;</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>اسمح للأمر &quot;delete&quot; بحذف كل القياسات</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>الإجراء ACTION واحد مما يلي</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>سطر لكل قياس، الأحدث أولًا، يبدأ باسمه (المبدئي)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>اطبع القياسات كما يفعل &quot;show&quot;، بصيغة --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>اكتب القياسات في FILE الخاص بالخيار --output، بصيغة --format أو بحسب اسم FILE: .csv أو .json أو .md أو
.txt، أو .tarnwickrun لقياس واحد</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>احذف القياسات دون سؤال ونهائيًا</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>يُحدَّد RUN باسمه كما في القائمة، أو بأربعة محارف أو أكثر من بداية معرّفه. ومن دونه تُقصد كل القياسات؛
وعندها يحتاج &quot;delete&quot; إلى --all. النافذة المفتوحة تتحدّث حالما تعود إليها. لا يستبدل --output ملفًا موجودًا
إلا إذا كان فارغًا أو يحوي قياسات؛ ومع --force يستبدل أي ملف آخر أيضًا.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>حالة الخروج: 0 تم، 1 لا يوجد مثل هذا القياس أو فشل الأمر، 2 استخدام خاطئ.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>اسرد القياسات التي تحتفظ بها النافذة أو اعرضها أو صدّرها أو احذفها</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>القيمة BYTES أرقام مجردة، أو أرقام مع K أو M أو G أو T (أي KiB وMiB وGiB وTiB: بخطوات من 1024). تُقرَّب الكتل صعودًا
إلى صفحات كاملة من 4096. القيم المبدئية هي قيم النافذة لتسهل المقارنة بينهما، عدا كتل الاختبارات
التتابعية: تأخذ النافذة «أمثل حجم نقل» الذي يعرضه &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>يُكتب كل شيء في مجلد مخفي داخل FOLDER ويُزال في النهاية، حتى بعد Ctrl+C. ما تركه في FOLDER قياس
أُنهي قسرًا يُزال قبل البدء؛ والملفات التي ما زالت قيد الاستخدام تبقى بعد انتظار ثانية.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>تبقى ملفات --handoff و--card حتى تنتهي جلستك، أو حتى يفرّغ النظام مجلده المؤقت.
لا يستبدل --output ملفًا موجودًا إلا إذا كان فارغًا أو يحوي قياسات (ملف قياس، أو ما يكتبه
&quot;show --format&quot; و&quot;history export&quot; بصيغة json أو csv)؛ ومع --force يستبدل أي ملف آخر أيضًا. النافذة المفتوحة
تعرض القياس الذي يضيفه --keep حالما تعود إليها. وعند تعذر كتابة شيء تُطبع القيم رغم ذلك
ويُعد القياس فاشلًا.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>حالة الخروج: 0 تم، 1 فشل، 2 استخدام خاطئ، 130 أوقفته إشارة.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>قِس نظام الملفات الذي يحوي FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>الاختبارات المراد إجراؤها، بهذا الترتيب دائمًا: sequentialWrite وsequentialRead
وrandomRead وrandomWrite وfileOps (المبدئي: الكل)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>حجم ملف البيانات، أو fill لملء القرص (المبدئي: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>ما يتركه --size fill حرًا (المبدئي: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>البايتات لكل استدعاء، كتابة تتابعية (المبدئي: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>البايتات لكل استدعاء، قراءة تتابعية (المبدئي: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>البايتات لكل عملية عشوائية (المبدئي: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>العمليات في كل اختبار عشوائي (المبدئي: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>الملفات في اختبار عمليات الملفات (المبدئي: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>دع النظام يضع ملف البيانات في الذاكرة المخبئية، كما مع البرامج العادية</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>أقل عدد من الثواني بين عيّنتين (المبدئي: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>اطبع كائن JSON واحدًا: الخطة وكل قيمة وكل عيّنة والتاريخ
والمجلد ووحدة التخزين ونظام الملفات والمحرك والنواة، وتحت &quot;evidence&quot;
و&quot;remarks&quot; ما لوحظ وما يدل عليه</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>اكتب ملف قياس هناك، للنافذة وللأمر &quot;show&quot; وللآخرين</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>أضف القياس إلى سجل النافذة</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>اكتب ملف قياس للنافذة وللأمر &quot;show&quot;، واطبع مساره في السطر
الأخير؛ ومع --json يكون &quot;handoffFile&quot; في الكائن</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>ارسم صورة للقياس لمشاركتها، بألوان فاتحة أو داكنة، واطبع
مسارها في السطر الأخير؛ ومع --json يكون &quot;cardFile&quot;</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>ملف القياس هو ما يكتبه &quot;run --handoff&quot; و&quot;run --output&quot; لقياس واحد. أما سجل النافذة (history.json)
وخرج &quot;show --format json&quot; ففيهما عدة قياسات. والرمز &quot;-&quot; هو الدخل القياسي.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>في النص تقارن أشرطة بين قيم عدة قياسات: أكبر قيمة من كل نوع تملأ مسارها، ويظهر &quot;--&quot; حيث لا قيمة
للقياس. تلائم الأسطر عرض الطرفية، أو 80 عمودًا. جدول Markdown مناسب للمنتديات. في CSV سطر لكل قياس،
بأرقام مجردة لجداول البيانات والسكربتات. وJSON قائمة بمحتويات ملفات القياس.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>الملف الذي لا يمكن عرضه له سطر في خرج الأخطاء القياسي، وتُعرض بقية الملفات.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>حالة الخروج: 0 عُرضت كلها، 1 لم تُعرض كلها، 2 استخدام خاطئ.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>اعرض القياسات من ملفاتها، وعدة قياسات جنبًا إلى جنب</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>لا يوجد قياس %1 في السجل</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 يدل على عدة قياسات</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>القياس</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>يجري البدء</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>المتبقي: %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>يجري الإيقاف وإزالة ملفات الاختبار</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>يجري تحضير ملف الاختبار، %1 ث</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>يجري البدء، %1 ث</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>المحرك</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>المستدامة</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>الذروة</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>الأدنى</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>الإجمالية</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>العمليات</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>الأسوأ</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>استعلام</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>تغيير الاسم</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>لم يُذكر RUNFILE لرسمه</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>أقصى قيمة للخيار %1 سنة واحدة</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>لا يوجد خيار %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>لا يقبل %1 قيمة</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>يحتاج %1 إلى قيمة: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>لا يُستخدم %1 إلا مع %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>يحتاج %1 إلى عدد صحيح من %2 إلى %3، لا %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>يحتاج %1 إلى عدد من البايتات، مثل 4096 أو 64K أو 5GiB، من %2 إلى %3، لا %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>يحتاج %1 إلى عدد من الثواني، 0 أو أكثر، لا %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>لم يُذكر FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>لا يُقبل سوى FOLDER واحد في كل مرة</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>قيمة %1 هي text أو markdown أو csv أو json، لا %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>يحتاج %1 إلى اسم ملف</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>لا يقبل %1 معاملًا</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>يحتاج %1 إلى %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>يتسع ملف القياس لقياس واحد، لا %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>يلزم %1 إذا لم ينته اسم FILE باللاحقة .tarnwickrun أو .csv أو .json أو .md أو .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>يحتاج %1 إلى RUN واحد أو أكثر أو إلى %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>لا يُستخدم %1 إلا مع %2 و%3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>يقبل %1 الأفعال list وshow وexport وdelete، لا %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>لم يُذكر أمر؛ انظر %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>لا يوجد أمر %1؛ انظر %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>لم يُذكر FOLDER لقياسه</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>لم يُذكر FOLDER لفحصه</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>لا يُقبل سوى FOLDER واحد في كل مرة، دون %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>اسم FOLDER فارغ</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: لا يوجد اختبار %2، بل %3 فقط</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>قيمة %1 هي light أو dark، لا %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>لم يُذكر FILE لعرضه</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>جاهز لقياس الأداء</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>اختر وحدة تخزين للبدء</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>اضبط الاختبارات والإعدادات في الجانب، ثم اضغط «ابدأ قياس الأداء».</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>اختر وحدة تخزين موصولة أو مجلدًا من شريط الأدوات.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>تحذير</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>كل المساحة الحرة</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
        <translation>لا</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>بعد %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>تُكتب عيّنات موزعة على المساحة المختارة ثم تُقرأ وتُزال. يستغرق ذلك ثوانيَ، ويكشف معظم السعات الزائفة، ولا يثبت شيئًا إن لم يعثر على شيء.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>يُكتب %1 من البيانات، ثم تُقرأ وتُقارَن وتُزال. لا تُمس ملفاتك.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>تُملأ المساحة الحرة كلها بالبيانات، ثم تُقرأ وتُقارَن وتُزال. لا تُمس ملفاتك.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>تُملأ المساحة الحرة كلها، نحو %1، بالبيانات، ثم تُقرأ وتُقارَن وتُزال. يستغرق ذلك ساعات على وحدة تخزين كبيرة، وتكون خلالها ممتلئة أمام البرامج الأخرى. لا تُمس ملفاتك.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1% من الفحص</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>في جزء واحد</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>في %1 جزء</numerusform>
            <numerusform>في %1 جزء</numerusform>
            <numerusform>في جزأين (%1)</numerusform>
            <numerusform>في %1 أجزاء</numerusform>
            <numerusform>في %1 جزءًا</numerusform>
            <numerusform>في %1 جزء</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1 إلى %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
        <translation>تاريخ الفحص</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>نُسخ النص</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>تعذر نسخ النص.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>تعذر حفظ الملف: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>حُفظ باسم «%1»</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <extracomment>%1 is the name of a test, %2 how much of it is done</extracomment>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <extracomment>%1 is a rate, %2 its unit, %3 how much is done of how much</extracomment>
        <translation>%1 %2، %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>المحرك %1°C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>يجري الآن</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>لم يبدأ بعد</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 what it does (done, running, to come), %3 its rate</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2، %3</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>المتبقي: بضع ثوانٍ</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>المتبقي من هذا الاختبار: بضع ثوانٍ</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>المتبقي: نحو %n ثانية</numerusform>
            <numerusform>المتبقي: نحو ثانية واحدة (%n)</numerusform>
            <numerusform>المتبقي: نحو ثانيتين (%n)</numerusform>
            <numerusform>المتبقي: نحو %n ثوانٍ</numerusform>
            <numerusform>المتبقي: نحو %n ثانية</numerusform>
            <numerusform>المتبقي: نحو %n ثانية</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ثانية</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو ثانية واحدة (%n)</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو ثانيتين (%n)</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ثوانٍ</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ثانية</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ثانية</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>المتبقي: نحو %n دقيقة</numerusform>
            <numerusform>المتبقي: نحو دقيقة واحدة (%n)</numerusform>
            <numerusform>المتبقي: نحو دقيقتين (%n)</numerusform>
            <numerusform>المتبقي: نحو %n دقائق</numerusform>
            <numerusform>المتبقي: نحو %n دقيقة</numerusform>
            <numerusform>المتبقي: نحو %n دقيقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>المتبقي من هذا الاختبار: نحو %n دقيقة</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو دقيقة واحدة (%n)</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو دقيقتين (%n)</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n دقائق</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n دقيقة</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n دقيقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>المتبقي: نحو %n ساعة</numerusform>
            <numerusform>المتبقي: نحو ساعة واحدة (%n)</numerusform>
            <numerusform>المتبقي: نحو ساعتين (%n)</numerusform>
            <numerusform>المتبقي: نحو %n ساعات</numerusform>
            <numerusform>المتبقي: نحو %n ساعة</numerusform>
            <numerusform>المتبقي: نحو %n ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ساعة</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو ساعة واحدة (%n)</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو ساعتين (%n)</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ساعات</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ساعة</numerusform>
            <numerusform>المتبقي من هذا الاختبار: نحو %n ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 من %2 عملية</numerusform>
            <numerusform>%1 من عملية واحدة (%2)</numerusform>
            <numerusform>%1 من عمليتين (%2)</numerusform>
            <numerusform>%1 من %2 عمليات</numerusform>
            <numerusform>%1 من %2 عملية</numerusform>
            <numerusform>%1 من %2 عملية</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>يجري التحضير…</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>القياس كاملًا</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
        <translation>وحدة التخزين</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>شريط القوائم</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>حدد قياسات للمقارنة</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>القياسات السابقة</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>قارن</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>امسح</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>قارن (%n)</numerusform>
            <numerusform>قارن (%n)</numerusform>
            <numerusform>قارن (%n)</numerusform>
            <numerusform>قارن (%n)</numerusform>
            <numerusform>قارن (%n)</numerusform>
            <numerusform>قارن (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>القياس الحالي</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>أتريد حذف كل القياسات المحفوظة؟</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>احذف الكل</translation>
    </message>
</context>
<context>
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>وصل إلى القرص أثناء الاختبار %1 على الأكثر مما كُتب.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>وصل إلى القرص أثناء الاختبار %1 مما كُتب.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>جاء من القرص %1 على الأكثر مما قُرئ.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>جاء من القرص %1 مما قُرئ.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>تعذر تفريغ كل ما كُتب من المخزن المؤقت إلى القرص: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>تعذر تفريغ ملف الاختبار من المخزن المؤقت إلى القرص: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 لأول %2، ثم %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>بلغ المحرك %1 بعد %2 (الحد %3)، ومنذئذ انخفضت السرعة بمقدار %4.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>توقف واحد لأكثر من ثانية: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 توقف لأكثر من ثانية، أطولها %2.</numerusform>
            <numerusform>توقف واحد (%1) لأكثر من ثانية، مدته %2.</numerusform>
            <numerusform>توقفان (%1) لأكثر من ثانية، أطولهما %2.</numerusform>
            <numerusform>%1 توقفات لأكثر من ثانية، أطولها %2.</numerusform>
            <numerusform>%1 توقفًا لأكثر من ثانية، أطولها %2.</numerusform>
            <numerusform>%1 توقف لأكثر من ثانية، أطولها %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>نقلت برامج أخرى %1 على القرص نفسه أثناء الاختبار.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>تعمل قناة اتصال %1 للمحرك بسرعة %2؛ ويستطيع المحرك %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>يبدأ القسم بعد %1 من بداية كتلة فيزيائية حجمها %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>لم يكن حرًا من وحدة التخزين سوى %1.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>قد تتسع ذاكرة مخبئية حجمها %2 لبيانات الاختبار البالغة %1.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>كان الجهاز يعمل على البطارية.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>كان المعالج مضبوطًا على توفير الطاقة.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>كان الجهاز يعمل على البطارية ومعالجه مضبوطًا على توفير الطاقة.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>يكتب نظام الملفات التغييرات في مواضع جديدة ويحسب مجاميع اختبارية للبيانات.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>يكتب نظام الملفات التغييرات في مواضع جديدة.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>فعّل «تجاوز الذاكرة المخبئية». وإن كان مفعّلًا فاختر حجمًا أكبر من ذاكرة الجهاز.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>اطّلع على حالة S.M.A.R.T. للمحرك وعلى سجل النظام قبل أن تأتمنه على بيانات.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>مرّت البيانات عبر ذاكرة مخبئية رغم الطلب من النظام تجاوزها.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>اختر حجمًا أكبر من ذاكرة الجهاز، أو اختبر القرص نفسه عبر نظام ملفات آخر.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>توقع السرعة الأدنى عند نقل أكثر من ذلك دفعة واحدة.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>وفّر للمحرك تهوية أفضل أو مشتت حرارة، وأعد القياس بعد أن يبرد.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>أعد القياس. وإن تكررت التوقفات فاطّلع على حالة S.M.A.R.T. للمحرك وافحص كبله.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>أعد القياس حين لا يستخدم القرصَ شيء آخر.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>جرّب منفذًا أو فتحة أو كبلًا آخر.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>أنشئ القسم من جديد بحيث يبدأ عند أحد مضاعفات 1MiB. هذا يمحو محتواه.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>حرّر بعض المساحة: كثير من المحركات وأنظمة الملفات تتباطأ عند الامتلاء.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>اختر حجمًا أكبر، وفعّل «تجاوز الذاكرة المخبئية».</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>أعد القياس والجهاز موصول بالكهرباء وتوفير الطاقة معطّل.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>لا يمكن رؤية القرص الذي تقع عليه وحدة التخزين هذه، لذا لا شيء يبيّن ما فعله بنفسه.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>تُبقي وحدة التخزين هذه ملفاتها في الذاكرة؛ لم يُقَس أي قرص.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>اختر مجلدًا على قرص.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>وحدة التخزين هذه ملف على وحدة تخزين أخرى.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>لقياس وحدة التخزين تلك نفسها، اختر مجلدًا عليها.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>القرص تابع لآلة افتراضية، وقد يضعه مضيفها في ذاكرة مخبئية.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>يضغط نظام الملفات البيانات. بيانات الاختبار لا تنضغط، لذا قد تكون ملفات أخرى أسرع.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>يكتب نظام الملفات البيانات مرتين، في سجل عملياته أولًا.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>جرى الوصول إلى هذا المجلد عبر بوابة سطح المكتب، وهي برنامج يدخل عمله في هذه القيم.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>اسمح للبيئة المعزولة باستخدام المجلد نفسه، ثم اختره من جديد.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>غير صالحة</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>تنبيه</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>ملاحظة</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>محلل سرعة الأقراص ووحدات التخزين</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>امسح الرمز لقياس قرصك</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>نوع البلاغ</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>علة</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>طلب ميزة</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>الملخص — وصف في سطر واحد</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>ماذا تود أن يفعل %1؟</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>ماذا حدث؟ اذكر خطوات تكرار المشكلة وما كنت تتوقعه.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>البريد الإلكتروني — اختياري، إن أردت أن نرد عليك</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>سيُرفق %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — المقارنة</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>شكرًا لك</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>أبلغ عن مشكلة</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>سُجّل بلاغك. شكرًا لمساعدتك في تحسين %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>أبلغ عبر الوب:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>أرسل</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>أوقف</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>ابدأ قياس الأداء</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>معدل النقل عبر الزمن</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>المظلَّل: الثلث الأخير من كل اختبار، ووسيطه هو السرعة المستدامة. المثلثات: الذروة وأدنى سرعة.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>القياس</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>المحرك</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المعاملات</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (غير صالحة)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>الملاحظات</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n قياس</numerusform>
            <numerusform>Ondel Tarnwick — قياس واحد (%n)</numerusform>
            <numerusform>Ondel Tarnwick — قياسان (%n)</numerusform>
            <numerusform>Ondel Tarnwick — %n قياسات</numerusform>
            <numerusform>Ondel Tarnwick — %n قياسًا</numerusform>
            <numerusform>Ondel Tarnwick — %n قياس</numerusform>
        </translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>نُسخ النص</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>نُسخ الجدول</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>تعذر نسخ النص.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>قوائم القياسات</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>قياسات Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>جداول CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>تعذر حفظ الملف: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>حُفظ باسم «%1»</translation>
    </message>
</context>
<context>
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>ليست قيمة القرص: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>ليست قيم القرص: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>قراءة عشوائية %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>كتابة عشوائية %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>عمليات الملفات</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>قراءة/كتابة</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
        <translation>عشوائي</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>المحرك</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>نظام الملفات</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>السعة</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>الحرة</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>الذاكرة المخبئية</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>متجاوَزة</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>مع ذاكرة مخبئية</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>نُسخت القيم</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>تعذر نسخ القيم.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1، ليست قيمة القرص</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>كتابة تتابعية</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>قراءة تتابعية</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>غيّر اسم التقرير…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>شارك صورة التقرير…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>انسخ القيم</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>انسخ نصًا</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>انسخ جدولًا بصيغة Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>احفظ ملف القياس…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>صدّر CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>قارن مع آخر قياس لوحدة التخزين هذه</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>احذف القياس</translation>
    </message>
</context>
<context>
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>يجري فحص السعة</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>يجري قياس الأداء</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>كتابة %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>قراءة %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>فشل قياس الأداء</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>اكتمل قياس الأداء</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>فشل فحص السعة</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>اكتمل فحص السعة</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>عن هذه القيم</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>معنى هذه الملاحظات</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>قراءة عشوائية</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>كتابة عشوائية</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>عمليات الملفات</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المعاملات</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>الذروة %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>الأدنى %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1، الذروة</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1، الأدنى</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1، زمن الاستجابة</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>عن هذه القيم</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>خادوم %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>خادوم شبكة</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>محرك خارجي</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>وحدة تخزين شبكية</translation>
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
        <translation>صدّر…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>احفظ هذه القيم في ملف نصي</translation>
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
        <translation>%1  (انتبه)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>المحرك</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>الواجهة</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>تقرير S.M.A.R.T. من Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>كتلة الكتابة</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>كتلة القراءة</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>الكتلة العشوائية</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>تجاوز الذاكرة المخبئية</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  الأمثل</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <extracomment>Button: opens a menu</extracomment>
        <translation>شارك</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>انسخ الصورة</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>احفظ باسم…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>أظهر في المجلد</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>أرسل بالبريد…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>انسخ نصًا</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>انسخ جدولًا بصيغة Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>احفظ ملف القياس…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>احفظ القياسات…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>صدّر CSV…</translation>
    </message>
</context>
<context>
    <name>SharedImageText</name>
    <message>
        <source>Image copied</source>
        <translation>نُسخت الصورة</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>تعذر نسخ الصورة.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>تعذر حفظ الصورة: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>حُفظ باسم «%1»</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>تعذر فتح المجلد.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>تعذر فتح أي برنامج بريد.</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>الاختبارات والإعدادات</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>الاختبارات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>يجري الفحص…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>يجري القياس…</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>اكتمل</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>برنامج %1 مجاني.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>إن كان مفيدًا لك، فدعمك يساعد على استمراره.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>ادعم عبر Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>أخفِ هذا لمدة أسبوع</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>سبق أن دعمتُ %1</translation>
    </message>
</context>
<context>
    <name>TargetFactsText</name>
    <message>
        <source>Sparse files</source>
        <translation>ملفات متناثرة</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>استنساخ</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>لقطات</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>وصلات صلبة</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>وصلات رمزية</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>سمات موسّعة</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>حساسية الأحرف غير معروفة</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>حساس لحالة الأحرف</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>غير حساس لحالة الأحرف</translation>
    </message>
    <message>
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 خارجي</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 داخلي</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 قابل للإزالة</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 شبكي</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>تعذر فتح المجلد.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>نظام الملفات</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>أمثل حجم I/O</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>حجم الكتلة</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>أطول اسم ملف</translation>
    </message>
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 حرف</numerusform>
            <numerusform>حرف واحد (%1)</numerusform>
            <numerusform>حرفان (%1)</numerusform>
            <numerusform>%1 أحرف</numerusform>
            <numerusform>%1 حرفًا</numerusform>
            <numerusform>%1 حرف</numerusform>
        </translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>أطول مسار</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>السعة</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>الحرة</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>غير معروف: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>لا قيم S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>اختر مجلدًا على وحدة التخزين المراد اختبارها (يُكتب هناك مجلد عمل مؤقت ثم يُزال).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>اختر</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>لا تجيب النافذة المفتوحة بالفعل؛ وستنفّذ المطلوب حالما تستطيع.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>لا تجيب النافذة المفتوحة بالفعل (العملية %1)؛ وستنفّذ المطلوب حالما تستطيع.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>كتابة</translation>
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
        <translation>عن Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التمس التحديثات…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>أنهِ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>اختر مجلدًا…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>افتح ملف قياس…</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
        <translation>&amp;قياس</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>ابدأ قياس الأداء</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>أوقف</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>افحص السعة…</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Menu entry: begins to choose runs</extracomment>
        <translation>قارن</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>تراجع عن الحذف</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مسا&amp;عدة</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>مساعدة Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>أبلغ عن مشكلة…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>ادعم Tarnwick…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation>مثل سطح المكتب</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>التمس التحديثات آليًا</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>يبحث عن إصدار جديد مرة في اليوم تقريبًا ويسأل قبل تثبيته. عند تعطيله، لا يبحث Tarnwick إلا عندما تختار «التمس التحديثات».</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>التمس الآن</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>هذه النسخة لا تحدّث نفسها. تُبنى نسخ التطوير دون مصدر التحديثات، فلا يمكنها استبدال نفسها بإصدار رسمي.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>لغة النافذة</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>تتبع النافذة هذا الخيار عند تشغيل Tarnwick في المرة القادمة.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>الصور المشارَكة بالإنجليزية</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>عند تعطيله تكون نصوصها بلغة النافذة.</translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>ادعم Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>برنامج Tarnwick مجاني ومن عمل مطوّر واحد. يغطي الدعم الاستضافة والوقت اللازم لاستمراره.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>ادعم عبر Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>سبق أن دعمتُ Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>يخفي ملاحظة الدعم أسفل الشريط الجانبي.</translation>
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
        <translation>معدل النقل عبر الزمن</translation>
    </message>
</context>
<context>
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: من %2 إلى %3 %6 خلال %4، والأخيرة %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>لا قياسات بعد.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>صغّر</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>استعد</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>كبّر</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>أغلق</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>حُذف %n قياس</numerusform>
            <numerusform>حُذف قياس واحد (%n)</numerusform>
            <numerusform>حُذف قياسان (%n)</numerusform>
            <numerusform>حُذفت %n قياسات</numerusform>
            <numerusform>حُذف %n قياسًا</numerusform>
            <numerusform>حُذف %n قياس</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>حُذف القياس</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>ملاحظات الإصدار</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>تخطَّ هذا الإصدار</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>أتريد التماس التحديثات آليًا؟</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>يجري التماس التحديثات…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>لديك أحدث إصدار</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>يتوفر إصدار جديد من %1</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>يجري تنزيل التحديث…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>يجري التحقق من توقيع التحديث…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>التحديث جاهز للتثبيت</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>تعذر التماس التحديثات</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>تعذر جلب التحديث</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>بإمكان %1 البحث عن إصدار جديد مرة في اليوم تقريبًا. لا يرسل شيئًا عنك أو عن أقراصك، ويسأل قبل تنزيل أي شيء.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>الإصدار %2 من %1 هو الأحدث.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>لديك %1. حجم تنزيل %2 هو %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>الإصدار %2 من %1 موقّع من صانعه. يتولى مثبّت البرامج في نظامك الأمر من هنا.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>التمس آليًا</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>ثبّت التحديث</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>لا تلتمس</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>ذكّرني لاحقًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>تعذر الوصول إلى خادوم التحديثات. تحقق من اتصال الإنترنت وحاول مجددًا.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>تعذرت قراءة ردّ خادوم التحديثات.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>لا يُتصل بخادوم التحديثات لهذه النسخة عبر اتصال آمن، لذا لم يُطلب منه شيء.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>يوجد إصدار جديد من %1، لكن خادوم التحديثات لا يذكر ما يلزم لتنزيله بأمان.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>تعذر تنزيل التحديث. تحقق من اتصال الإنترنت وحاول مجددًا.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>حجم التنزيل لا يطابق حجم التحديث المتوقع، لذا جرى التخلص منه.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>التنزيل غير موقّع من صانع %1، لذا جرى التخلص منه.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>لا توجد مساحة كافية للتحديث في المجلد المؤقت.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>تعذرت كتابة التحديث في المجلد المؤقت.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>لا يوجد في هذا النظام برنامج يفتح حزمة التحديث.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>حدد وحدة تخزين</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>لم تُحدد وحدة تخزين</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>وحدات التخزين الموصولة</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>اختر مجلدًا…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>أظهر في المجلد</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>افحص السعة…</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>داخلي</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>خارجي</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>قابل للإزالة</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>شبكي</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>الجذر</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>مجلد مشترك</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>ملء القرص</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>المستدامة: وسيط السرعة في الثلث الأخير من الاختبار، وهي التي يستقر عندها النسخ الطويل؛ والذروة والأدنى هما أسرع عُشر ثانية وأبطأ عُشر ثانية فيه.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>يجعل البيانات تتجاوز ذاكرة النظام، فيُقاس القرص لا الذاكرة المخبئية.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>يكتب ملفًا كبيرًا واحدًا من أوله إلى آخره ثم يفرّغ المخزن المؤقت إلى القرص، كما يفعل النسخ الطويل إلى وحدة التخزين هذه.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>يقرأ ملفًا كبيرًا واحدًا من أوله إلى آخره، كما يفعل النسخ الطويل من وحدة التخزين هذه.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>يقرأ كتلًا من مواضع متفرقة في الملف، واحدة تلو الأخرى كما تفعل معظم البرامج: فقراءة عدة كتل معًا تقيس طابور المحرك لا مدة الانتظار؛ وIOPS هي عدد هذه العمليات في الثانية.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>يكتب كتلًا في مواضع متفرقة من الملف، واحدة تلو الأخرى كما تفعل معظم البرامج: فكتابة عدة كتل معًا تقيس طابور المحرك لا مدة الانتظار؛ وIOPS هي عدد هذه العمليات في الثانية.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>ينشئ ملفات فارغة ويستعلم عنها ويغيّر أسماءها ويحذفها؛ والقيمة هي عدد ما أنشأه منها في الثانية.</translation>
    </message>
</context>
</TS>
