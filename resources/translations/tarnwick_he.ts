<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>על אודות %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>גרסה %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>תרומה ל־%1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>תודות</translation>
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
        <translation>עוד</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>לא זמין כעת</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>לא זמין כעת</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>שיא %1
מזערי %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>שיא %1 · מזערי %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>לא ניתן להתחבר לשרת. יש לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>השרת דחה את הדיווח (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>יכולות הכרך</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>האם הכרך גדול כפי שהוא מצהיר, והאם הוא שומר את מה שנכתב אליו?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>שטח לבדיקה</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>קריאה שנייה</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>מהירה: דגימות בלבד</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>התחלת בדיקה</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>שמירת דוח…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>העתקת הדוח כטקסט</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>בדיקה חדשה</translation>
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
        <translation>עצירה</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2%</translation>
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
        <translation>הקיבולת של %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>חזרה להרצות</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>מפת השטח שנבדק</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>הקצב לאורך השטח, עד %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>קריאה</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>כרך זה שומר רק את %1 הראשונים ממה שנכתב אליו.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>כרך זה מצהיר על %1, אך שומר רק את %2 הראשונים.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>כרך זה מצהיר על %1, אך שומר רק את %2 הראשונים בערך.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>בלוק אחד במיקום %1 חזר שונה.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>בלוק אחד (%1) במיקום %2 חזר שונה.</numerusform>
            <numerusform>%1 בלוקים במיקום %2 חזרו שונים.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>בלוק אחד (%1) חזר שונה, במיקום %2.</numerusform>
            <numerusform>%1 בלוקים חזרו שונים, הראשון במיקום %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>מתוך %2, %1 חזרו שונים, הבלוק הראשון במיקום %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>בלוק אחד במיקום %1 היה תקין בהתחלה והשתנה לאחר מכן.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>בלוק אחד (%1) במיקום %2 היה תקין בהתחלה והשתנה לאחר מכן.</numerusform>
            <numerusform>%1 בלוקים במיקום %2 היו תקינים בהתחלה והשתנו לאחר מכן.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>בלוק אחד (%1) היה תקין בהתחלה והשתנה לאחר מכן, במיקום %2.</numerusform>
            <numerusform>%1 בלוקים היו תקינים בהתחלה והשתנו לאחר מכן, הראשון במיקום %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>מתוך %2, %1 היו תקינים בהתחלה והשתנו לאחר מכן, הבלוק הראשון במיקום %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>לא ניתן היה לקרוא בלוק אחד במיקום %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>לא ניתן היה לקרוא בלוק אחד (%1) במיקום %2.</numerusform>
            <numerusform>לא ניתן היה לקרוא %1 בלוקים במיקום %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>לא ניתן היה לקרוא בלוק אחד (%1), במיקום %2.</numerusform>
            <numerusform>לא ניתן היה לקרוא %1 בלוקים, הראשון במיקום %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>לא ניתן היה לקרוא %1 מתוך %2, הבלוק הראשון במיקום %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>לא ניתן היה לכתוב בלוק אחד במיקום %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>לא ניתן היה לכתוב בלוק אחד (%1) במיקום %2.</numerusform>
            <numerusform>לא ניתן היה לכתוב %1 בלוקים במיקום %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>לא ניתן היה לכתוב בלוק אחד (%1), במיקום %2.</numerusform>
            <numerusform>לא ניתן היה לכתוב %1 בלוקים, הראשון במיקום %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>מלבד %2 שנכתבו, לא ניתן היה לכתוב %1, הבלוק הראשון במיקום %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>בלוק אחד במיקום %1 נכתב או נקרא רק בניסיון שני.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>בלוק אחד (%1) במיקום %2 נכתב או נקרא רק בניסיון שני.</numerusform>
            <numerusform>%1 בלוקים במיקום %2 נכתבו או נקראו רק בניסיון שני.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>בלוק אחד (%1) נכתב או נקרא רק בניסיון שני, במיקום %2.</numerusform>
            <numerusform>%1 בלוקים נכתבו או נקראו רק בניסיון שני, הראשון במיקום %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>מתוך %2, %1 נכתבו או נקראו רק בניסיון שני, הבלוק הראשון במיקום %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>בלוק אחד במיקום %1 לא חזר כפי שנכתב.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>בלוק אחד (%1) במיקום %2 לא חזר כפי שנכתב.</numerusform>
            <numerusform>%1 בלוקים במיקום %2 לא חזרו כפי שנכתבו.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>בלוק אחד (%1) לא חזר כפי שנכתב, במיקום %2.</numerusform>
            <numerusform>%1 בלוקים לא חזרו כפי שנכתבו, הראשון במיקום %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>מתוך %2, %1 לא חזרו כפי שנכתבו, הבלוק הראשון במיקום %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>לפני שנעצרה, הבדיקה נתקלה בבלוקים שלא חזרו כפי שנכתבו, הראשון במיקום %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>ניתן היה לכתוב לכרך עד %1 מתוך %2, וכל מה שמעבר לכך נדחה.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>הבדיקה נעצרה לפני שנקרא משהו בחזרה.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>הבדיקה נעצרה לאחר ש־%1 מתוך %2 חזרו כפי שנכתבו.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>הדגימות שומרות את מה שנכתב, אך הן קרובות זו לזו.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>דגימות לכל אורך %1 שומרות את מה שנכתב, אך אין בכך הוכחה.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>דגימות לכל אורך %1 של שטח פנוי שומרות את מה שנכתב, אך אין בכך הוכחה.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>המכסה שלך בכרך נוצלה במלואה אחרי %1 מתוך %2; חלק זה שומר את מה שנכתב.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>הכרך התמלא אחרי %1 מתוך %2; חלק זה שומר את מה שנכתב.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>כל %1 חזרו כפי שנכתבו, אך ברובם מהזיכרון: הדבר אינו מעיד הרבה על הדיסק.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>כל %1 שומרים את מה שנכתב.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>כל %1 של השטח הפנוי שומרים את מה שנכתב.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>קיבולת מוצהרת</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>קיבולת אמיתית</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>שטח לבדיקה</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 של שטח פנוי</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>דגימות</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, אחת לכל %2</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>התוכן היה תקין בקריאה הראשונה.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>במיקום %1 (%2): סיבית אחת התהפכה.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>במיקום %1 (%2): סיבית אחת (%3) התהפכה.</numerusform>
            <numerusform>במיקום %1 (%2): %3 סיביות התהפכו.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>הסיבה אינה ידועה</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>במיקום %1 (%2): לא ניתן היה לקרוא (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>במיקום %1 (%2): לא ניתן היה לכתוב (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>במיקום %1 (%2): הכתיבה או הקריאה הצליחה רק בניסיון שני (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>במיקום %1 (%2): חזר מה שנכתב במקום אחר.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>במיקום %1 (%2): הבלוק שנכתב במיקום %3 חזר שוב ושוב.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>במיקום %1 (%2): חזר מה שנכתב במיקום %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>במיקום %1 (%2): חזרו אפסים.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>במיקום %1 (%2): חזר משהו שמעולם לא נכתב שם.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>מה ששום בדיקה אינה יכולה לגלות: האם השטח שבו שמורים הקבצים שלך תקין, מה נותר ברזרבה של הכונן והאם בלוק שתוקן יחזיק מעמד.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>כרך זה שומר את קבציו בזיכרון: שום דיסק לא נבדק.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>רק %1% ממה שנקרא הגיעו מהדיסק. יש לבדוק יותר ממה שזיכרון המחשב יכול להכיל.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>לא ניתן לראות את הדיסק שמאחורי כרך זה, ולכן ייתכן שמה שחזר הגיע ממטמון.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>הבדיקה נעצרה: אין מידע על מה שלא נקרא בחזרה.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>בדיקה מהירה כותבת רק למקומות ספורים. היא מגלה את רוב הקיבולות המזויפות בתוך שניות; אם לא נמצא דבר, אין בכך הוכחה.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>נבדק פחות מהמתוכנן: ייתכן שתוכניות אחרות תפסו את השטח.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>כרך</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>כונן</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>נכתב</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>נקרא בחזרה</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>נקרא שוב אחרי %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>כפי שנכתב</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>השתנה</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>לא ניתן היה לקרוא</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>לא ניתן היה לכתוב</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>רק בניסיון שני</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>נקרא מהדיסק</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>ובמקום אחד נוסף.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>ובמקום אחד נוסף (%1).</numerusform>
            <numerusform>וב־%1 מקומות נוספים.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>הקיבולת של %1</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>בהכנה…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>כתיבת דגימות</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>קריאה בחזרה</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>המתנה</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>קריאה חוזרת</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>לא נכתב</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>לא קריא</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>לא ניתן לכתיבה</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>קריאה</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>השוואה להרצה האחרונה של כרך זה</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>כתיבה לאורך זמן</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>קריאה לאורך זמן</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>השוואת הרצות</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>הושוו %1 מבחני ביצועים</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>סריקה כדי לנסות</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>לא נתון של הדיסק</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>השוואת %1 הרצות</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>שיתוף תמונת השוואה</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>הפרשים לעומת</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation>הושלם</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>צירוף נתוני אבחון</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>פעילות אחרונה מהפעלה זו. שמות קבצים, שרתים וחשבונות מוחלפים באסימונים אנונימיים לפני שדבר נרשם.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>הצגה…</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>הסתרת מבחנים והגדרות</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>הצגת מבחנים והגדרות</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>שינוי שם הדוח. השם מופיע גם בתמונות שמשותפות.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>כותרת הדוח</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>שיתוף תמונת דוח</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>מחיקת הרצה</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>צמצום</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>לא נתון של הדיסק</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>למלא את הדיסק?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>המבחן כותב עד שנותרים %1 פנויים, ואז מסיר הכול. בכונן גדול הדבר נמשך זמן רב, וכל מה שזקוק בו לשטח ייתקל במחסור עד לסיום המבחן.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>מילוי הדיסק</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>הצגה בתיקייה</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>הצגה בתיקייה: %1</translation>
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
        <translation>בדיקות קודמות</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>לפני כשל</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>תקין</translation>
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
        <translation>&amp;היסטוריה</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>העתקה כטקסט</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>העתקה כטבלת Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>שמירת הרצות…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>ייצוא CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>קריאה</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>מחיקת %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>מחיקת הרצה זו</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>מוכן למבחן ביצועים</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>יש לבחור כרך כדי להתחיל</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>יש להתאים את המבחנים וההגדרות שבצד וללחוץ על „הרצת מבחן ביצועים”.</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>יש לבחור כרך מעוגן או תיקייה מסרגל הכלים.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>אזהרה</translation>
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
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>כונן %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>כל ההרצה</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>הכרך</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>כרך</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>שורת התפריטים</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>בחירת הרצות להשוואה</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>הרצות קודמות</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>השוואה</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ניקוי</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>השוואת %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>הרצה נוכחית</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>למחוק את כל ההרצות השמורות?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>מחיקת הכול</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>תיקיית עבודה:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>זמנית, נכתבת שם ומוסרת</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>שמירה בשם</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>הרצות Tarnwick</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>מנתח מהירות דיסקים וכרכים</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>סריקה כדי למדוד את הדיסק שלך</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>סוג הדיווח</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>תקלה</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>בקשת תכונה</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>תקציר — תיאור בשורה אחת</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>פרטים</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>מה היית רוצה ש־%1 יעשה?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>מה קרה? יש לציין את השלבים לשחזור ומה ציפית שיקרה.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>דוא״ל — לא חובה, אם ברצונך שנחזור אליך</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>יצורפו %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>תודה רבה</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>דיווח על בעיה</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>הדיווח שלך נרשם. תודה על העזרה בשיפור %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>דיווח באינטרנט:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>שליחה</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>סיום</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>הרצת מבחן ביצועים</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>תפוקה לאורך זמן</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>מוצלל: השליש האחרון של כל מבחן, שהחציון שלו הוא הקצב המתמשך. משולשים: קצב השיא והקצב המזערי.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>כתיבה רציפה</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>קריאה רציפה</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>שינוי שם הדוח…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>שיתוף תמונת הדוח…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>העתקת הנתונים</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>העתקה כטקסט</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>העתקה כטבלת Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>שמירת קובץ הרצה…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>ייצוא CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>השוואה להרצה האחרונה של כרך זה</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>מחיקת הרצה</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>בדיקת קיבולת פועלת</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>מבחן ביצועים פועל</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>מבחן הביצועים נכשל</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>כתיבה %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>קריאה %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>מבחן הביצועים הושלם</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>בדיקת הקיבולת הושלמה</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>בדיקת הקיבולת נכשלה</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>על הנתונים האלה</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>משמעות ההערות</translation>
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
        <translation>ייצוא…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>שמירת הנתונים האלה כקובץ טקסט</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>גודל</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>בלוק כתיבה</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>בלוק קריאה</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>בלוק אקראי</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>עקיפת המטמון</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>שיתוף</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>העתקת תמונה</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>שמירה בשם…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>הצגה בתיקייה</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>שליחה בדוא״ל…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>העתקה כטקסט</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>העתקה כטבלת Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>שמירת קובץ הרצה…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>שמירת הרצות…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>ייצוא CSV…</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>מבחנים והגדרות</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>מבחנים</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>בבדיקה…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>בהרצה…</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>הושלם</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>נכשל</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>מוכן</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>השימוש ב־%1 חינם.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>אם התוכנה מועילה לך, תרומתך עוזרת להמשיך לפתח אותה.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>תרומה ב־Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>לא עכשיו</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>הסתרה למשך שבוע</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>כבר תרמתי ל־%1</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>כתיבה</translation>
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
        <translation>על אודות Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>בדיקת עדכונים…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>הגדרות…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;קובץ</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>בחירת תיקייה…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>פתיחת קובץ הרצה…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>ה&amp;רצה</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>הרצת מבחן ביצועים</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>בדיקת קיבולת…</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>השוואה</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>ביטול המחיקה</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;עזרה</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>עזרה של Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>דיווח על בעיה…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>תרומה ל־Tarnwick…</translation>
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
        <translation>כל השטח הפנוי</translation>
    </message>
    <message>
        <source>No</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>אחרי %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>דגימות לכל אורך השטח שנבחר נכתבות, נקראות בחזרה ומוסרות. הבדיקה נמשכת שניות, מגלה את רוב הקיבולות המזויפות, ואם לא נמצא דבר אין בכך הוכחה.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>נכתבים %1, נקראים בחזרה, מושווים ומוסרים. הקבצים שלך אינם מושפעים.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>כל השטח הפנוי נכתב, נקרא בחזרה, מושווה ומתפנה. הקבצים שלך אינם מושפעים.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>כל השטח הפנוי, כ־%1, נכתב, נקרא בחזרה, מושווה ומתפנה. בכרך גדול הדבר נמשך שעות; בינתיים הכרך מלא עבור תוכניות אחרות. הקבצים שלך אינם מושפעים.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1% מהבדיקה</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>בחלק אחד</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>בחלק אחד (%1)</numerusform>
            <numerusform>ב־%1 חלקים</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 עד %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>מועד הבדיקה</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>הטקסט הועתק</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>לא ניתן להעתיק את הטקסט.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>לא ניתן לשמור את הקובץ: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>נשמר בשם „%1”</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>הסתיים</translation>
    </message>
    <message>
        <source>running</source>
        <translation>פועל</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>ממתין</translation>
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
        <translation>מספר שניות</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>כ־%1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>כ־%1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>כ־%1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>נותרו %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>נותרו %1 למבחן זה</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 פעולות</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>בהכנה…</translation>
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
        <translation>%1 הרצות</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>הטקסט הועתק</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>הטבלה הועתקה</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>לא ניתן להעתיק את הטקסט.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>רשימות הרצות</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>הרצות Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>טבלאות CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>לא ניתן לשמור את הקובץ: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>נשמר בשם „%1”</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>ייחוס</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>לא נתון של הדיסק: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>לא נתונים של הדיסק: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>קריאה אקראית %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>כתיבה אקראית %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>פעולות קבצים</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>קריאה/כתיבה</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>אקראי</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>כונן</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>מערכת קבצים</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>קיבולת</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>פנוי</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>גודל</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>מטמון</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>נעקף</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>בשימוש</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>הנתונים הועתקו</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>לא ניתן להעתיק את הנתונים.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, לא נתון של הדיסק</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>רשת</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>התמונה הועתקה</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>לא ניתן להעתיק את התמונה.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>לא ניתן לשמור את התמונה: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>נשמר בשם „%1”</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>לא ניתן לפתוח את התיקייה.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>לא ניתן לפתוח תוכנת דוא״ל.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>קבצים דלילים</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>שיבוט</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>תמונות מצב</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>קישורים קשיחים</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>קישורים סמליים</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>מאפיינים מורחבים</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>הבחנה ברישיות אינה ידועה</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>מבחין ברישיות</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>אינו מבחין ברישיות</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>לא ניתן לפתוח את התיקייה.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>מערכת קבצים</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>תבנית</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>גודל I/O מיטבי</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>גודל בלוק</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>שם קובץ מרבי</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 תווים</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>נתיב מרבי</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>קיבולת</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>פנוי</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>לא ידוע: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>אין נתוני S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>עדכונים</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>בדיקת עדכונים אוטומטית</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>מחפש גרסה חדשה בערך פעם ביום ושואל לפני ההתקנה. כשהאפשרות כבויה, Tarnwick בודק רק בעת בחירה ב„בדיקת עדכונים”.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>לבדוק כעת</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>גרסת בנייה זו אינה מתעדכנת מעצמה. גרסאות פיתוח נבנות ללא ערוץ העדכונים, ולכן אינן יכולות להחליף את עצמן בגרסה רשמית.</translation>
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
        <translation>תרומה ל־Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>השימוש ב־Tarnwick חינם, והוא נוצר בידי מפתח אחד. התרומות מכסות את האחסון ברשת ואת הזמן הדרוש להמשך הפיתוח.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>תרומה ב־Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>כבר תרמתי ל־Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>מסתיר את הודעת התרומה בתחתית סרגל הצד.</translation>
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
        <translation>תפוקה לאורך זמן</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>מזעור</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>שחזור</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>הגדלה</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>נמחקו %1 הרצות</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>ההרצה נמחקה</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>ביטול הפעולה</translation>
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
        <translation>עדכון תוכנה</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>הערות גרסה</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>דילוג על גרסה זו</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>לבדוק עדכונים אוטומטית?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>מתבצעת בדיקת עדכונים…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>הגרסה שלך עדכנית</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>יש גרסה חדשה של %1</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>העדכון בהורדה…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>חתימת העדכון נבדקת…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>העדכון מוכן להתקנה</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>לא ניתן לבדוק עדכונים</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>לא ניתן לקבל את העדכון</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>התוכנה %1 יכולה לחפש גרסה חדשה בערך פעם ביום. שום מידע עליך או על הדיסקים שלך לא נשלח, ולפני כל הורדה תוצג שאלה.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>הגרסה %2 של %1 היא החדשה ביותר.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>הגרסה שלך היא %1. גודל ההורדה של %2 הוא %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>הגרסה %2 של %1 חתומה בידי היוצר. מכאן ממשיך מתקין התוכנה של המערכת.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>בדיקה אוטומטית</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>התקנת העדכון</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>לא לבדוק</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>להזכיר לי אחר כך</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>לא ניתן להתחבר לשרת העדכונים. יש לבדוק את חיבור האינטרנט ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>לא ניתן לקרוא את תשובת שרת העדכונים.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>החיבור לשרת העדכונים של גרסת בנייה זו אינו מאובטח, ולכן לא נשלחה אליו שום בקשה.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>יש גרסה חדשה של %1, אך שרת העדכונים אינו מספק את המידע הדרוש כדי להוריד אותה בבטחה.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>לא ניתן להוריד את העדכון. יש לבדוק את חיבור האינטרנט ולנסות שוב.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>גודל ההורדה אינו תואם לגודל העדכון, ולכן היא נמחקה.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>ההורדה אינה חתומה בידי היוצר של %1, ולכן היא נמחקה.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>אין מספיק מקום לעדכון בתיקייה הזמנית.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>לא ניתן לכתוב את העדכון לתיקייה הזמנית.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>אין במערכת זו תוכנה שפותחת את חבילת העדכון.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>כרך</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>בחירת כרך</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>לא נבחר כרך</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>כרכים מעוגנים</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>בחירת תיקייה…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>הצגה בתיקייה</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>בדיקת קיבולת…</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>קצב מתמשך: חציון הקצב בשליש האחרון של המבחן, שבו מתייצבת העתקה ארוכה; השיא והמזערי הם עשירית השנייה המהירה ביותר והאיטית ביותר שלו.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>מעביר את הנתונים שלא דרך זיכרון המערכת, כך שנמדד הדיסק ולא המטמון.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>כותב קובץ גדול אחד מתחילתו ועד סופו ומרוקן אותו לדיסק, כפי שעושה העתקה ארוכה אל כרך זה.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>קורא קובץ גדול אחד מתחילתו ועד סופו, כפי שעושה העתקה ארוכה מכרך זה.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>קורא בלוקים ממקומות מפוזרים בקובץ, אחד בכל פעם כפי שעושות רוב התוכניות: קריאה של כמה בבת אחת הייתה מודדת את התור של הכונן ולא את משך ההמתנה; IOPS הן פעולות כאלה בשנייה.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>כותב בלוקים במקומות מפוזרים בקובץ, אחד בכל פעם כפי שעושות רוב התוכניות: כתיבה של כמה בבת אחת הייתה מודדת את התור של הכונן ולא את משך ההמתנה; IOPS הן פעולות כאלה בשנייה.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>יוצר קבצים ריקים, מאתר אותם, משנה את שמותיהם ומוחק אותם; הנתון הוא מספר הקבצים שנוצרו בשנייה.</translation>
    </message>
</context>
</TS>
