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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>אין מספיק שטח: דרושים %1, ורק %2 פנויים.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>שגיאת קלט/פלט: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>לא ניתן לכתוב לשם. ייתכן שהכרך הוא לקריאה בלבד, או שהתיקייה אינה מאפשרת זאת.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>קובץ המבחן קטן מדי עבור גודל הבלוק האקראי.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>כתיבה רציפה</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>קריאה רציפה</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>קריאה אקראית</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>כתיבה אקראית</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>פעולות קבצים</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>קבצים/שנייה</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>מרבי %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>התיקייה הוסרה או שהכרך שלה נותק במהלך ההרצה.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>הכרך נותק, או שהשרת שלו אינו זמין עוד.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>הכונן דיווח על שגיאה, או נותק במהלך ההרצה.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>ניתן רק לקרוא מהכרך: מערכות עוברות למצב זה כשהן מוצאות בו שגיאה.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>הכרך התמלא במהלך ההרצה, או שהמכסה שלך בו נוצלה במלואה.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>מערכת הקבצים, או מגבלה של הפעלה זו, אינה מאפשרת קבצים בגודל כזה.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>הרשאות התיקייה השתנו במהלך ההרצה, או שהמערכת אוסרת זאת שם.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>אין מספיק זיכרון לבלוקים בגודל כזה.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>יותר מדי קבצים פתוחים כרגע; יש לסגור כמה תוכניות ולנסות שוב.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>כותרת התשובה ארוכה מדי</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>אין שרת מתווך שניתן להשתמש בו</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>לא ניתן לטעון את libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>לא ניתן לשלוח את הדיווח מארגז החול הזה, שאין בו רשת.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <source>Capacity of the volume</source>
        <translation>קיבולת הכרך</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
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
        <translation>הקצב לאורך השטח, עד %1MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>קריאה</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>מה ששום בדיקה אינה יכולה לגלות: האם השטח שבו שמורים הקבצים שלך תקין, מה נותר ברזרבה של הכונן והאם בלוק שתוקן יחזיק מעמד.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>מערכת קבצים זו אינה מקצה שטח בלי לכתוב אליו, ולכן לא ניתן היה לפזר את הדגימות. התוצאה אינה מעידה על גודל הכרך: יש להריץ בדיקה שאינה מהירה.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>בדיקה מהירה כותבת רק למקומות ספורים: מה שביניהם לא נבדק.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>בדיקה מהירה כותבת רק למקומות ספורים. היא מגלה את רוב הקיבולות המזויפות בתוך שניות; אם לא נמצא דבר, אין בכך הוכחה.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>נבדק פחות מהמתוכנן: הכרך התמלא מוקדם מדי. ייתכן שאבדו בו נתונים של מערכת הקבצים עצמה.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>נבדק פחות מהמתוכנן: ייתכן שתוכניות אחרות תפסו את השטח.</translation>
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
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>מה שנכתב מעבר לקיבולת האמיתית אובד, או הורס את מה שנמצא בו במקום אחר. יש להעתיק ממנו את מה שדרוש ולא לסמוך עליו.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>הבדיקה נעצרה: אין מידע על מה שלא נקרא בחזרה.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>מערכת קבצים זו אינה מחזירה דבר שאינו תואם לסכומי הביקורת שלה: לא ניתן לקרוא בה נתונים שהשתנו.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>הקיבולת של %1</translation>
    </message>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>מערכת קבצים זו אינה מאפשרת לפזר דגימות: רק %1 במקום אחד נבדקו, והם שומרים את מה שנכתב.</translation>
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
        <translation>כל ה־%1 חזרו כפי שנכתבו, אך ברובם מהזיכרון: הדבר אינו מעיד הרבה על הדיסק.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>כל ה־%1 שומרים את מה שנכתב.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>כל ה־%1 של השטח הפנוי שומרים את מה שנכתב.</translation>
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
        <source>about %1</source>
        <translation>כ־%1</translation>
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
        <source>In one place</source>
        <translation>במקום אחד</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>קריאה</translation>
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
        <translation>שימוש: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
פתיחת מנתח מהירות הדיסקים והכרכים, בחירת התיקייה הראשונה והצגת קובצי הרצה (*.tarnwickrun).
  --check-capacity  מעבר לבדיקת הכרך של אותה תיקייה
  --choose-folder   בקשה לבחור תיקייה
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 אינו תיקייה או קובץ הרצה שניתן לפתוח.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>כתיבה לאורך זמן</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>קריאה לאורך זמן</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>ייחוס</translation>
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
        <translation>השוואת הרצות</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>הושווה מבחן ביצועים אחד (%n)</numerusform>
            <numerusform>הושוו %n מבחני ביצועים</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>יש לסרוק כדי לנסות</translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>השוואת הרצה אחת (%n)</numerusform>
            <numerusform>השוואת %n הרצות</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>שיתוף תמונת השוואה</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>הפרשים לעומת</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>קריאה אקראית</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>כתיבה אקראית</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>פעולות קבצים</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>פעולות/שנייה</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 פנויים</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>מבחן מילוי הדיסק</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>מבחן %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>קריאה/כתיבה %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>כתיבה %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>קריאה %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>אקראי %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>ללא מטמון</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>עם מטמון</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>DialogsText</name>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>הרצות Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>„%1” פגום או אינו הרצה של Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>„%1” אינו תיקייה או קובץ הרצה שניתן לפתוח.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>„%1” ועוד קובץ אחד (%2) פגומים או אינם הרצות של Tarnwick.</numerusform>
            <numerusform>„%1” ועוד %2 קבצים פגומים או אינם הרצות של Tarnwick.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>„%1” ועוד פריט אחד (%2) אינם תיקיות או קובצי הרצה שניתן לפתוח.</numerusform>
            <numerusform>„%1” ועוד %2 פריטים אינם תיקיות או קובצי הרצה שניתן לפתוח.</numerusform>
        </translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>הרצה: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
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
        <translation>בדיקות קודמות</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>לפני כשל</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>תקין</translation>
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
        <translation>אזהרה קריטית</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>טמפרטורה</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>אורך חיים שנוצל</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>רזרבה זמינה</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>סף הרזרבה</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>זמן פעולה</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>מחזורי הפעלה</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>מחזורי טעינת ראשים</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>כיבויים לא תקינים</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>נתונים שנכתבו</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>נתונים שנקראו</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>פקודות קריאה של המארח</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>פקודות כתיבה של המארח</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>זמן פעילות הבקר</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>מגזרים שהוקצו מחדש</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>מגזרים ממתינים</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>מגזרים שאינם ניתנים לתיקון</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>שגיאות מדווחות שאינן ניתנות לתיקון</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>ניסיונות סיבוב חוזרים</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>שגיאות CRC בממשק</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>שגיאות מדיה</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>רשומות ביומן השגיאות</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>דיסקים</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>רזרבה מתחת לסף</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>אמינות ירודה</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>קריאה בלבד</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>גיבוי הזיכרון נכשל</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>לא ידוע</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 שנים</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>%1 מתוך %2 דיסקים השיבו</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>אין התקן מאחורי נתיב זה</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>אין דיסק מאחורי %1</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 אינו התקן בלוקים</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 אינו מדווח אם הוא במצב שינה, ולכן לא הופרע</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 במצב שינה, ולכן לא הופרע</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>ל־%1 אין S.M.A.R.T., או שהוא מושבת בו</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>ל־%1 אין ממשק S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 אינו מעביר הלאה פקודות S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 אינו מספק את יומן הבריאות של NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>רק מנהל מערכת רשאי לתשאל את %1</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 מחוץ להישג ידו של תהליך זה</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 אינו משיב</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 אינו משיב לגבי %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 אינו משיב</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 אינו קורא את הבריאות של כונני NVMe (גרסה 2.10 קוראת)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>ל־UDisks2 אין נתוני בריאות של %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>ל־UDisks2 אין הערכת בריאות של %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 אינו מכיר כונן מאחורי %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>ATA S.M.A.R.T. של %1, שמסר הערכה ללא נתונים</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>ATA S.M.A.R.T. של %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>יומן הבריאות של NVMe של %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 עבור %1, נקרא לפני %2 דק׳</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 עבור %1</translation>
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
        <translation>%1, וכן %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>יום אחד (%1)</numerusform>
            <numerusform>%1 ימים</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>לפני כשל</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>תקין</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>קריאה</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>מחיקת %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>מחיקת הרצה זו</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>מתבצעת עצירה, הקבצים מוסרים</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>לא ניתן היה להציג את הבדיקה כ־JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>מבחין ברישיות</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>משמר רישיות</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>קבצים דלילים</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>קישורים קשיחים</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>קישורים סמליים</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>מאפיינים מורחבים</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>זרמים בעלי שם</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>רשימות בקרת גישה</translation>
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
        <source>Journal</source>
        <translation>יומן</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>יומן פעיל</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>חתום</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>כן</translation>
    </message>
    <message>
        <source>no</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>לא ידוע</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>תבנית</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>קיבולת</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>זמין</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>בשימוש</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>חיבור</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>קריאה בלבד</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>מוצפן</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>נקודת עיגון</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>התקן</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>סוג</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>גודל בלוק</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>גודל העברה מיטבי</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>אורך שם מרבי</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>אורך נתיב מרבי</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>מספר קישורים מרבי</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>דגם</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>אופן החיבור</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>מקור</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>ממשק</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(לתשומת לב)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>כרך</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>מערכת קבצים</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>כונן</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>בריאות</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>אין נתוני S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>לא ניתן היה להפעיל את %1, שמגיע עם החלון</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 אינו משיב</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 הוא תיקייה</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 אינו קובץ רגיל</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 קיים ואינו מכיל הרצות; --force יחליף אותו</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>נתון של הרצה זו חורג ממה שקובץ יכול להכיל.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>לא ניתן היה לכתוב את %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>לא ניתן היה לכתוב את ההיסטוריה.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>לא ניתן היה לכתוב את התוצאה</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 אינו תיקייה</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 אינו נמצא בארגז החול הזה, שיש בו רק חלק מתיקיות המחשב</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 שייך לארגז החול עצמו; תיקיית המחשב בשם זה מוסתרת ממנו.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>קבצים של הרצה אחרת בתיקייה זו נמצאים בשימוש ולא הוסרו.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: ריקון המאגר למדיה נכשל (%2); ייתכן שלא כל מה שנכתב נמצא שם.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>הכנה: ריקון המאגר למדיה נכשל (%1); ייתכן שלא כל מה שנכתב נמצא שם.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>לא ניתן היה לכתוב את קובץ ההרצה לתיקייה הזמנית שלך.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>לא ניתן היה להוסיף את ההרצה להיסטוריה.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 גדול מהגודל המרבי של קובץ הרצה (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>לא ניתן היה לקרוא את %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>קלט תקני</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>הקלט התקני גדול מהגודל המרבי של קובץ הרצה (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>הקלט התקני אינו קובץ הרצה: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 אינו קובץ הרצה: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>לא ניתן היה לצייר את התמונה: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>לא ניתן היה לצייר את התמונה, או לכתוב אותה לתיקייה הזמנית שלך.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>ציור בצבעים הכהים</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>קובץ הרצה הוא מה שהפקודה &quot;run --handoff&quot; כותבת, עבור הרצה אחת. התמונה היא קובץ PNG ברוחב 1616 פיקסלים עם שוליים
שקופים; הנתיב שלה מודפס. אין צורך בתצוגה. תמונה בעלת אותה כותרת מחליפה את הקודמת; היא נשמרת עד לסיום ההפעלה שלך,
או עד שהמערכת מרוקנת את התיקייה הזמנית.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>קוד יציאה: 0 הסתיים, 1 לא ניתן היה לקרוא קובץ או ליצור את התמונה, 2 שימוש שגוי.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>ציור תמונה לשיתוף של הרצה, או של כמה הרצות בהשוואה</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>כמה לכתוב ולקרוא בחזרה (ברירת מחדל: כל השטח הפנוי)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>כמה יישאר פנוי בכל מקרה (ברירת מחדל: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>דגימות לאורך כל הטווח, תוך שניות: מגלה קיבולת מזויפת,
ואינה מוכיחה דבר אם לא נמצאה כזו</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>קריאה חוזרת של הכול כעבור S שניות</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>הדפסת אובייקט JSON אחד: ההערכה, המשפט וכל מה שנמצא</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>כותב לתיקייה נסתרת בתוך FOLDER קבצים ששונים בכל בלוק, קורא אותם בחזרה שלא דרך מטמון המערכת, משווה את הכול
ומסיר אותם, גם אחרי Ctrl+C. הקבצים שלך אינם מושפעים; אך בהתקן בעל קיבולת מזויפת, כל כתיבה מעבר לקיבולת האמיתית
עלולה להרוס את מה שנמצא שם, כמו בכל שימוש אחר בו. --quick כותב דגימות בלבד.
קבצים של בדיקה שהופסקה בכוח מוסרים בהרצה או בבדיקה הבאה ב־FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>הערך BYTES הוא ספרות בלבד, או ספרות עם K, M, G, T (KiB, MiB, GiB, TiB: צעדים של 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>קוד יציאה: 0 לא נמצאה בעיה, 1 כשל, 2 שימוש שגוי, 3 נמצאו פגמים, 130 נעצר בידי אות;
מה שנמצא עד אז מודפס.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>בדיקה אם כרך גדול כפי שהוא מצהיר ושומר את מה שנכתב אליו</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>כ־text (ברירת מחדל), markdown, csv או json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>מתן אפשרות ל־--output להחליף קובץ בעל תוכן כלשהו</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>הדפסת העובדות כאובייקט JSON אחד</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>הדפסת הרשימה כמערך JSON אחד</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>שום דבר אינו נכתב. מה שהמערכת אינה מוסרת מוצג כ־&quot;--&quot; או כ„לא ידוע”, ואינו נכלל באובייקט
ה־JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>כל מערכת קבצים מופיעה פעם אחת, בנקודת העיגון הקצרה ביותר שלה. מה שהמערכת, החבילות שלה והמכולות שלה מעגנות לעצמן
אינו נכלל. לשרת שאינו משיב בזמן לא מוצגת קיבולת.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>הכונן רק נבחן: כונן במצב שינה אינו מוער ודבר אינו מופעל בו. מקור נתוני הבריאות, או הסיבה להיעדרם, מוצגים
בפקודה &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>הצגת מה שמכיל את FOLDER: כרך, מערכת קבצים, כונן ובריאותו</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>הצגת רשימת הכרכים המעוגנים</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>הדפסת הבריאות של הכונן שמכיל את FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>שימוש: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>הצגת טקסט זה</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>התוכנה Ondel Tarnwick במסוף: מהירותו של דיסק, הנמדדת בכתיבה אליו; מה שנכתב מוסר בסיום.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>הצגת טקסט זה, או אחרי פקודה: האפשרויות של אותה פקודה</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>הצגת הגרסה</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>הקובץ שהפקודה &quot;export&quot; כותבת</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>מתן אפשרות ל־&quot;delete&quot; למחוק את כל ההרצות</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>הערך ACTION הוא אחד מאלה</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>שורה לכל הרצה, מהחדשה לישנה, שנפתחת בשם ההרצה (ברירת מחדל)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>הדפסת הרצות כמו &quot;show&quot;, בתבנית של --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>כתיבת הרצות ל־FILE של --output, בתבנית של --format או לפי שם ה־FILE: .csv, .json, .md,
.txt, או .tarnwickrun להרצה אחת</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>מחיקת הרצות, ללא שאלה ולצמיתות</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>כל RUN מצוין בשמו כפי שהוא ברשימה, או בארבעה תווים או יותר שפותחים את ה־id שלו. בלעדיו הכוונה לכל ההרצות;
הפקודה &quot;delete&quot; דורשת אז --all. חלון פתוח מתעדכן מיד עם החזרה אליו. --output מחליף קובץ קיים רק אם הוא ריק
או מכיל הרצות; עם --force גם כל קובץ אחר.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>קוד יציאה: 0 הסתיים, 1 אין הרצה כזו או כשל, 2 שימוש שגוי.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>רשימה, הצגה, ייצוא או מחיקה של ההרצות שהחלון שומר</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>הערך BYTES הוא ספרות בלבד, או ספרות עם K, M, G, T (KiB, MiB, GiB, TiB: צעדים של 1024). בלוקים מעוגלים כלפי מעלה
לדפים שלמים של 4096. ברירות המחדל הן של החלון, כדי שניתן יהיה להשוות בין הנתונים, למעט הבלוקים של המבחנים
הרציפים: החלון משתמש ב„גודל העברה מיטבי” שמציגה הפקודה &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>הכול נכתב לתיקייה נסתרת בתוך FOLDER ומוסר בסוף, גם אחרי Ctrl+C. מה שהרצה שהופסקה בכוח השאירה ב־FOLDER מוסר
לפני ההתחלה; קבצים שעדיין בשימוש נשארים, לאחר המתנה של שנייה.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>הקבצים של --handoff ו־--card נשמרים עד לסיום ההפעלה שלך, או עד שהמערכת מרוקנת את התיקייה הזמנית.
--output מחליף קובץ קיים רק אם הוא ריק או מכיל הרצות (קובץ הרצה, או מה שכותבות הפקודות &quot;show --format&quot;
ו־&quot;history export&quot; כ־json או כ־csv); עם --force גם כל קובץ אחר. חלון פתוח מציג הרצה שנוספה באמצעות --keep
מיד עם החזרה אליו. כשלא ניתן לכתוב דבר מה, הנתונים מודפסים בכל זאת
וההרצה נחשבת לכושלת.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>קוד יציאה: 0 הסתיים, 1 כשל, 2 שימוש שגוי, 130 נעצר בידי אות.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>מדידת מערכת הקבצים שמכילה את FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>המבחנים להרצה, תמיד בסדר הזה: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (ברירת מחדל: הכול)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>גודל קובץ הנתונים, או fill למילוי הדיסק (ברירת מחדל: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>מה ש־--size fill משאיר פנוי (ברירת מחדל: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>בתים לקריאת מערכת, כתיבה רציפה (ברירת מחדל: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>בתים לקריאת מערכת, קריאה רציפה (ברירת מחדל: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>בתים לפעולה אקראית (ברירת מחדל: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>פעולות בכל מבחן אקראי (ברירת מחדל: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>קבצים במבחן פעולות הקבצים (ברירת מחדל: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>מתן אפשרות למערכת לשמור את קובץ הנתונים במטמון, כמו בתוכניות רגילות</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>המספר המזערי של שניות בין שתי דגימות (ברירת מחדל: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>הדפסת אובייקט JSON אחד: התוכנית, כל נתון, כל דגימה, תאריך,
תיקייה, כרך, מערכת קבצים, כונן, ליבה, ותחת &quot;evidence&quot; ו־&quot;remarks&quot;
מה שנצפה ומה משמעותו</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>כתיבת קובץ הרצה לשם, עבור החלון, עבור &quot;show&quot; ועבור אחרים</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>הוספת ההרצה להיסטוריה של החלון</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>כתיבת קובץ הרצה עבור החלון ועבור &quot;show&quot;, והדפסת הנתיב שלו
בשורה האחרונה; עם --json: בתור &quot;handoffFile&quot; באובייקט</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>ציור תמונה של ההרצה לשיתוף, בצבעים בהירים או כהים, והדפסת
הנתיב שלה בשורה האחרונה; עם --json: בתור &quot;cardFile&quot;</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>קובץ הרצה הוא מה שכותבות הפקודות &quot;run --handoff&quot; ו־&quot;run --output&quot;, עבור הרצה אחת. בהיסטוריה של החלון
(history.json) ובפלט של &quot;show --format json&quot; יש כמה. &quot;-&quot; הוא הקלט התקני.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>כטקסט, פסים משווים בין הנתונים של כמה הרצות: הגדול מכל סוג ממלא את המסלול שלו, ו־&quot;--&quot; מופיע היכן שלהרצה אין נתון.
השורות מתאימות לרוחב המסוף, או ל־80 עמודות. טבלת Markdown מיועדת לפורומים. ב־CSV יש שורה לכל הרצה, עם מספרים
פשוטים לגיליונות אלקטרוניים ולתסריטים. JSON הוא רשימה של תוכני קובצי הרצה.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>קובץ שלא ניתן להציג מקבל שורה בפלט השגיאות התקני, והאחרים מוצגים.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>קוד יציאה: 0 כולם הוצגו, 1 לא כולם, 2 שימוש שגוי.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>הצגת הרצות מקובצי ההרצה שלהן, וכמה מהן זו לצד זו</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>אין בהיסטוריה הרצה %1</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 מתאים לכמה הרצות</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>הרצה</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>תאריך</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>כותרת</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>מתחיל</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>נותרו %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>מתבצעת עצירה, קובצי המבחן מוסרים</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>הכנת קובץ המבחן, %1 שנ׳</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>מתחיל, %1 שנ׳</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>כונן</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>מתמשך</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>שיא</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>מזערי</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>כולל</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>פעולות</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>קצב</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>מרבי</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>יצירה</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>קריאת פרטים</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>שינוי שם</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>מחיקה</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>חסר RUNFILE לציור</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 הוא שנה לכל היותר</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>אין אפשרות בשם %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 אינו מקבל ערך</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 דורש ערך: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 אפשרי רק עם %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 דורש מספר שלם מ־%2 עד %3, ולא %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 דורש מספר בתים, כגון 4096, 64K או 5GiB, מ־%2 עד %3, ולא %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 דורש מספר שניות, 0 או יותר, ולא %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>חסר FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>FOLDER אחד בכל פעם</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 הוא text, markdown, csv או json, ולא %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 דורש שם קובץ</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 אינו מקבל ארגומנט</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 דורש %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>קובץ הרצה מכיל הרצה אחת, ולא %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>%1 דרוש כששם ה־FILE אינו מסתיים ב־.tarnwickrun, .csv, .json, .md או .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 דורש RUN אחד או יותר, או %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 אפשרי רק עם %2 ועם %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 יכול לבצע list, show, export ו־delete, ולא %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>חסרה פקודה; פרטים: %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>אין פקודה בשם %1; פרטים: %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>חסר FOLDER למדידה</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>חסר FOLDER לבדיקה</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>FOLDER אחד בכל פעם, בלי %1 נוסף</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>השם של FOLDER ריק</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: אין מבחן בשם %2, רק %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 הוא light או dark, ולא %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>חסר FILE להצגה</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>אזהרה</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>כל השטח הפנוי</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1 עד %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <extracomment>%1 is the name of a test, %2 how much of it is done</extracomment>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <extracomment>%1 is a rate, %2 its unit, %3 how much is done of how much</extracomment>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>כונן %1°C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>הסתיים</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>פועל</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>ממתין</translation>
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
        <translation>נותרו מספר שניות</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>נותרו מספר שניות למבחן זה</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>נותרה כשנייה (%n)</numerusform>
            <numerusform>נותרו כ־%n שניות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>נותרה כשנייה (%n) למבחן זה</numerusform>
            <numerusform>נותרו כ־%n שניות למבחן זה</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>נותרה כדקה (%n)</numerusform>
            <numerusform>נותרו כ־%n דקות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>נותרה כדקה (%n) למבחן זה</numerusform>
            <numerusform>נותרו כ־%n דקות למבחן זה</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>נותרה כשעה (%n)</numerusform>
            <numerusform>נותרו כ־%n שעות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>נותרה כשעה (%n) למבחן זה</numerusform>
            <numerusform>נותרו כ־%n שעות למבחן זה</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 מתוך פעולה אחת (%2)</numerusform>
            <numerusform>%1 מתוך %2 פעולות</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>בהכנה…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>השוואה</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>ניקוי</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>השוואת %n</numerusform>
            <numerusform>השוואת %n</numerusform>
        </translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>לכל היותר %1 ממה שנכתב הגיעו לדיסק במהלך המבחן.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>%1 ממה שנכתב הגיעו לדיסק במהלך המבחן.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>לכל היותר %1 ממה שנקרא הגיעו מהדיסק.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>%1 ממה שנקרא הגיעו מהדיסק.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>לא כל מה שנכתב הועבר מהמאגר לדיסק: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>לא ניתן היה להעביר את קובץ המבחן מהמאגר לדיסק: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 עבור %2 הראשונים, ואחר כך %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>הכונן הגיע ל־%1 אחרי %2 (הגבול: %3), ומאותו רגע הקצב היה נמוך ב־%4.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>הפסקה אחת של יותר משנייה: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>הפסקה אחת (%1) של יותר משנייה, באורך %2.</numerusform>
            <numerusform>%1 הפסקות של יותר משנייה, הארוכה ביותר %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>תוכניות אחרות העבירו %1 באותו דיסק במהלך המבחן.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>ערוץ ה־%1 של הכונן פועל ב־%2; הכונן מסוגל ל־%3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>המחיצה מתחילה %1 בתוך בלוק פיזי של %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>רק %1 מהכרך היו פנויים.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>%1 של המבחן עשויים להיכנס למטמון של %2.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>המחשב פעל על סוללה.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>המעבד היה מוגדר לחיסכון בחשמל.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>המחשב פעל על סוללה, והמעבד היה מוגדר לחיסכון בחשמל.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>מערכת הקבצים כותבת שינויים למקומות חדשים ומחשבת סכומי ביקורת לנתונים.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>מערכת הקבצים כותבת שינויים למקומות חדשים.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>יש להפעיל את „עקיפת המטמון”. אם היא כבר מופעלת, יש לבחור גודל שעולה על זיכרון המחשב.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>יש לעיין במצב ה־S.M.A.R.T. של הכונן וביומן המערכת לפני שמפקידים בו נתונים.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>נתונים עברו דרך מטמון אף שהמערכת התבקשה לעקוף אותו.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>יש לבחור גודל שעולה על זיכרון המחשב, או לבחון את הדיסק שמתחת דרך מערכת קבצים אחרת.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>יש לצפות לקצב הנמוך יותר כשמועברת בבת אחת כמות גדולה מזו.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>יש לספק לכונן יותר אוויר או גוף קירור, ולהריץ שוב לאחר שהתקרר.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>יש להריץ שוב. אם ההפסקות חוזרות, יש לבדוק את מצב ה־S.M.A.R.T. של הכונן ואת הכבל שלו.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>יש להריץ שוב כששום דבר אחר אינו משתמש בדיסק.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>כדאי לנסות שקע, חריץ או כבל אחר.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>יש ליצור את המחיצה מחדש, כך שתתחיל בכפולה של 1MiB. פעולה זו מוחקת אותה.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>כדאי לפנות שטח: כוננים ומערכות קבצים רבים מאטים כשהם מלאים.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>יש לבחור גודל גדול יותר ולהפעיל את „עקיפת המטמון”.</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>יש להריץ שוב בחיבור לרשת החשמל, עם חיסכון בחשמל כבוי.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>לא ניתן לראות את הדיסק שמאחורי כרך זה, ולכן אין דרך לדעת מה הוא עצמו עשה.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>כרך זה שומר את קבציו בזיכרון; שום דיסק לא נמדד.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>יש לבחור תיקייה בדיסק.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>כרך זה הוא קובץ בכרך אחר.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>כדי למדוד את אותו כרך עצמו, יש לבחור תיקייה בו.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>הדיסק שייך למכונה וירטואלית, וייתכן שהמארח שלה שומר אותו במטמון.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>מערכת הקבצים דוחסת נתונים. נתוני המבחן אינם נדחסים, ולכן קבצים אחרים עשויים להיות מהירים יותר.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>מערכת הקבצים כותבת נתונים פעמיים, תחילה ליומן שלה.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>הגישה לתיקייה זו הייתה דרך הפורטל של שולחן העבודה, תוכנית שפעולתה נכללת בנתונים.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>יש לאפשר לארגז החול להשתמש בתיקייה עצמה, ולבחור בה שוב.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>לא תקף</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>זהירות</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>הערה</translation>
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
        <translation>יש לסרוק כדי למדוד את הדיסק שלך</translation>
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
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>יצורפו %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — השוואה</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>מוצלל: השליש האחרון של כל מבחן, שהחציון שלו הוא הקצב המתמשך. משולשים: קצב השיא והקצב המזערי.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>הרצה</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>תאריך</translation>
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
        <source>Parameters</source>
        <translation>פרמטרים</translation>
    </message>
    <message>
        <source>System</source>
        <translation>מערכת</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (לא תקף)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>הערות</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — הרצה אחת (%n)</numerusform>
            <numerusform>Ondel Tarnwick — %n הרצות</numerusform>
        </translation>
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
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>לא נתון של הדיסק: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>לא נתונים של הדיסק: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>קריאה אקראית %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>כתיבה אקראית %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>פעולות קבצים</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>קריאה/כתיבה</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>פנוי</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>גודל</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>מטמון</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>נעקף</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>עם מטמון</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>מתבצעת בדיקת קיבולת</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>מתבצע מבחן ביצועים</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>כתיבה %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>קריאה %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>מבחן הביצועים נכשל</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>מבחן הביצועים הושלם</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>בדיקת הקיבולת נכשלה</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>בדיקת הקיבולת הושלמה</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>כתיבה</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>קריאה אקראית</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>כתיבה אקראית</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>פעולות קבצים</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>כרך</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>פרמטרים</translation>
    </message>
    <message>
        <source>System</source>
        <translation>מערכת</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>שיא %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>מזערי %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, שיא</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, מזערי</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, השהיה</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>על הנתונים האלה</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>שרת %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>שרת רשת</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>כונן חיצוני</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>כרך רשת</translation>
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
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  (לתשומת לב)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>כונן</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>ממשק</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>תאריך</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>דוח S.M.A.R.T. של Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  מיטבי</translation>
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
        <extracomment>Button: opens a menu</extracomment>
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
    <name>SharedImageText</name>
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
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>TargetFactsText</name>
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
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 חיצוני</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 פנימי</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 נשלף</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 רשת</translation>
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
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>תו אחד (%1)</numerusform>
            <numerusform>%1 תווים</numerusform>
        </translation>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>פנוי</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>לא ידוע: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>אין נתוני S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>יש לבחור תיקייה בכרך למבחן (תיקיית עבודה זמנית נכתבת שם ומוסרת).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>בחירה</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>החלון שכבר פתוח אינו משיב; הוא יבצע את המבוקש ברגע שיוכל.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>החלון שכבר פתוח (תהליך %1) אינו משיב; הוא יבצע את המבוקש ברגע שיוכל.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>קריאה</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>כמו שולחן העבודה</translation>
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
        <translation>בדיקה כעת</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>גרסת בנייה זו אינה מתעדכנת מעצמה. גרסאות פיתוח נבנות ללא ערוץ העדכונים, ולכן אינן יכולות להחליף את עצמן בגרסה רשמית.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>שפה</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>שפת החלון</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>השינוי בחלון ייכנס לתוקף בהפעלה הבאה של Tarnwick.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>תמונות משותפות באנגלית</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>כשהאפשרות כבויה, הטקסט בתמונות הוא בשפת החלון.</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: מ־%2 עד %3 %6 במשך %4, האחרון %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>אין עדיין מדידות.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>מזעור</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>שחזור</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>הגדלה</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>סגירה</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>נמחקה הרצה אחת (%n)</numerusform>
            <numerusform>נמחקו %n הרצות</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>ההרצה נמחקה</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>ביטול הפעולה</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
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
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>פנימי</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>חיצוני</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>נשלף</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>רשת</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>כרך</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>שורש</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>תיקייה משותפת</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>מילוי הדיסק</translation>
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
        <translation>כותב קובץ גדול אחד מתחילתו ועד סופו ומרוקן את המאגר לדיסק, כפי שעושה העתקה ארוכה אל כרך זה.</translation>
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
        <translation>יוצר קבצים ריקים, קורא את פרטיהם, משנה את שמותיהם ומוחק אותם; הנתון הוא מספר הקבצים שנוצרו בשנייה.</translation>
    </message>
</context>
</TS>
