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
    <name>AppDelegate</name>
    <message>
        <source>%1 % – %2</source>
        <translation>%1% – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
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
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
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
        <source>The server rejected the report (%1).</source>
        <translation>رفض الخادوم التقرير (%1).</translation>
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
        <source>Close</source>
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
        <translation>السرعة على امتداد المساحة، حتى %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>قراءة</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
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
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>تحفظ العيّنات ما كُتب فيها، لكنها متقاربة المواضع.</translation>
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
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>ما لا يكشفه أي فحص: هل المساحة التي تشغلها ملفاتك سليمة، وما الذي يحتفظ به المحرك احتياطيًا، وهل ستدوم الكتلة التي أُصلحت.</translation>
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
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>أُوقف الفحص: لا يُعرف حال ما لم تُعَد قراءته.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>لا يكتب الفحص السريع إلا في مواضع قليلة. يكشف معظم السعات الزائفة في ثوانٍ؛ وعدم العثور على شيء لا يثبت شيئًا.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>فُحص أقل مما خُطط له: ربما شغلت برامج أخرى المساحة.</translation>
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
        <source>Capacity of %1</source>
        <translation>سعة %1</translation>
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
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>قراءة</translation>
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
        <translation>الكتابة عبر الزمن</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>القراءة عبر الزمن</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>مقارنة القياسات</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>عدد قياسات الأداء المقارَنة: %1</translation>
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
    <message>
        <source>Comparing %1 runs</source>
        <translation>مقارنة القياسات (%1)</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>شارك صورة المقارنة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>الفروق عن</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
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
        <translation>النشاط الأخير في هذه الجلسة. تُستبدل أسماء الملفات والخواديم والحسابات برموز مجهولة قبل تدوين أي شيء.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>اعرض…</translation>
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
        <translation>غيّر اسم هذا التقرير. يظهر الاسم أيضًا على الصور التي تشاركها.</translation>
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
        <translation>يوشك على التعطل</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>سليم</translation>
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
        <translation>ال&amp;سجل</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>انسخ نصًا</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>انسخ جدول Markdown</translation>
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
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>قراءة</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>احذف %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>احذف هذا القياس</translation>
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
        <translation>تحذير</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation>%1 %2، %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>المحرك %1 °C</translation>
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
        <source>the volume</source>
        <translation>وحدة التخزين</translation>
    </message>
    <message>
        <source>Volume</source>
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
        <translation>قارن</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>امسح</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>قارن (%1)</translation>
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
    <name>QFileDialog</name>
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
        <translation>افتح</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>قياسات Tarnwick</translation>
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
        <translation>سيُرفق %1 %2 · %3 · %4.</translation>
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
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>المظلَّل: الثلث الأخير من كل اختبار، ووسيطه هو السرعة المستدامة. المثلثات: الذروة وأدنى سرعة.</translation>
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
        <translation>انسخ جدول Markdown</translation>
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
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>يجري فحص السعة</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>يجري قياس الأداء</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>فشل قياس الأداء</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>كتابة %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>قراءة %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>اكتمل قياس الأداء</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>اكتمل فحص السعة</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>فشل فحص السعة</translation>
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
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
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
        <translation>انسخ جدول Markdown</translation>
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
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Write</source>
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
        <translation>أغلق</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>ت&amp;شغيل</translation>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation>كل المساحة الحرة</translation>
    </message>
    <message>
        <source>No</source>
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
        <translation>%1 إلى %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
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
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>running</source>
        <translation>يجري الآن</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>لم يبدأ بعد</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2، %3</translation>
    </message>
    <message>
        <source>A few seconds</source>
        <translation>بضع ثوانٍ</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>نحو %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>نحو %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>نحو %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>المتبقي: %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>المتبقي من هذا الاختبار: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>العمليات: %1</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>يجري التحضير…</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::RunExports</name>
    <message>
        <source>%1 runs</source>
        <translation>القياسات (%1)</translation>
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
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>المرجع</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>ليست قيمة القرص: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>ليست قيم القرص: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>قراءة عشوائية %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>كتابة عشوائية %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>عمليات الملفات</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>قراءة/كتابة</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>Random</source>
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
        <translation>الحرة</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>الذاكرة المخبئية</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>متجاوَزة</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>مستخدَمة</translation>
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
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
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
    <name>TarnwickKit::views::TargetFacts</name>
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
        <translation>أقصى اسم ملف</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 حرفًا</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>أقصى مسار</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>السعة</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>الحرة</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>غير معروف: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>لا قيم S.M.A.R.T.: %1</translation>
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
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>صغّر</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>استعد</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>كبّر</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>حُذفت القياسات (%1)</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>حُذف القياس</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
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
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>ملاحظات الإصدار</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
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
        <translation>يمكن أن يبحث %1 عن إصدار جديد مرة في اليوم تقريبًا. لا يرسل شيئًا عنك أو عن أقراصك، ويسأل قبل تنزيل أي شيء.</translation>
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
        <translation>يكتب ملفًا كبيرًا واحدًا من أوله إلى آخره ويفرغه إلى القرص، كما يفعل النسخ الطويل إلى وحدة التخزين هذه.</translation>
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
        <translation>ينشئ ملفات فارغة ويبحث عنها ويغيّر أسماءها ويحذفها؛ والقيمة هي عدد ما أنشأه منها في الثانية.</translation>
    </message>
</context>
</TS>
