<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>%1 hakkında</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>%1 için destek ver</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Teşekkürler</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>%1 % – %2</source>
        <translation>Yüzde %1 – %2</translation>
    </message>
</context>
<context>
    <name>BannerMenu</name>
    <message>
        <source>More</source>
        <translation>Daha fazla</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Şu anda kullanılamıyor</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Şu anda kullanılamıyor</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <translation>tepe %1
en düşük %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>tepe %1 · en düşük %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Sunucuya ulaşılamadı. Bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <translation>Sunucu bildirimi reddetti (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Birim özellikleri</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>Birim, söylediği kadar büyük mü ve kendisine verileni koruyor mu?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Denetlenecek alan</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>İkinci okuma</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Hızlı: yalnızca örnekler</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Denetimi başlat</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Raporu kaydet…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Raporu metin olarak kopyala</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Yeni denetim</translation>
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
        <translation>Durdur</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %%2</translation>
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
        <translation>%1 kapasitesi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Ölçümlere dön</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Denetlenen alanın haritası</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Alan boyunca hız, en çok %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Okuma</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Bu birim, üzerine yazılanların yalnızca ilk %1 kadarını koruyor.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Bu birim %1 olduğunu bildiriyor ama yalnızca ilk %2 kadarını koruyor.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Bu birim %1 olduğunu bildiriyor ama yaklaşık olarak yalnızca ilk %2 kadarını koruyor.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>%1 konumundaki bir blok değişmiş olarak geri okundu.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%2 konumundaki %1 blok değişmiş olarak geri okundu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 blok değişmiş olarak geri okundu, ilki %2 konumunda.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%2 içinden %1 değişmiş olarak geri okundu, ilk blok %3 konumunda.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>%1 konumundaki bir blok önce doğruydu, sonra değişti.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%2 konumundaki %1 blok önce doğruydu, sonra değişti.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 blok önce doğruydu, sonra değişti; ilki %2 konumunda.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%2 içinden %1 önce doğruydu, sonra değişti; ilk blok %3 konumunda.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>%1 konumundaki bir blok okunamadı.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>%2 konumundaki %1 blok okunamadı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>%1 blok okunamadı, ilki %2 konumunda.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>%2 içinden %1 okunamadı, ilk blok %3 konumunda.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>%1 konumundaki bir blok yazılamadı.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>%2 konumundaki %1 blok yazılamadı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>%1 blok yazılamadı, ilki %2 konumunda.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Yazılan %2 dışında %1 yazılamadı, ilk blok %3 konumunda.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>%1 konumundaki bir blok ancak ikinci denemede yazılabildi veya okunabildi.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%2 konumundaki %1 blok ancak ikinci denemede yazılabildi veya okunabildi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 blok ancak ikinci denemede yazılabildi veya okunabildi, ilki %2 konumunda.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%2 içinden %1 ancak ikinci denemede yazılabildi veya okunabildi, ilk blok %3 konumunda.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>%1 konumundaki bir blok yazıldığı gibi geri okunmadı.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%2 konumundaki %1 blok yazıldığı gibi geri okunmadı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 blok yazıldığı gibi geri okunmadı, ilki %2 konumunda.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%2 içinden %1 yazıldığı gibi geri okunmadı, ilk blok %3 konumunda.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>Denetim, durdurulmadan önce yazıldığı gibi geri okunmayan bloklarla karşılaştı, ilki %1 konumunda.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>Birime %2 içinden %1 yazılabildi, gerisi reddedildi.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>Denetim, hiçbir şey geri okunmadan durduruldu.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>Denetim, %2 içinden %1 yazıldığı gibi geri okunduğunda durduruldu.</translation>
    </message>
    <message>
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>Örnekler yazılanı koruyor ama birbirlerine çok yakınlar.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>%1 boyunca dağılmış örnekler yazılanı koruyor; bu bir kanıt değildir.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>%1 boş alana dağılmış örnekler yazılanı koruyor; bu bir kanıt değildir.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Birimdeki kotanız %2 içinden %1 yazıldıktan sonra doldu; bu bölüm yazılanı koruyor.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Birim, %2 içinden %1 yazıldıktan sonra doldu; bu bölüm yazılanı koruyor.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Tamamı (%1) yazıldığı gibi geri okundu ama çoğunlukla bellekten: Bu, disk hakkında pek bir şey söylemez.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Tamamı (%1) yazılanı koruyor.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Boş alanın tamamı (%1) yazılanı koruyor.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Bildirilen boyut</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Gerçek boyut</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Denetlenecek alan</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 boş alan</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Örnekler</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, %2 aralıkla</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>İlk okumada doğruydu.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>%1 konumunda, %2: bir bit ters dönmüş.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>%1 konumunda, %2: %3 bit ters dönmüş.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>neden bilinmiyor</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>%1 konumunda, %2: okunamadı (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>%1 konumunda, %2: yazılamadı (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>%1 konumunda, %2: ancak ikinci denemede yazılabildi veya okunabildi (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>%1 konumunda, %2: başka bir yere yazılan geri okundu.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>%1 konumunda, %2: her seferinde %3 konumuna yazılan blok geri okundu.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>%1 konumunda, %2: %3 konumuna yazılan geri okundu.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>%1 konumunda, %2: sıfırlar geri okundu.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>%1 konumunda, %2: oraya hiç yazılmamış bir şey geri okundu.</translation>
    </message>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Hiçbir denetimin söyleyemeyeceği şeyler: dosyalarınızın altındaki alanın sağlam olup olmadığı, sürücünün yedekte ne tuttuğu ve onarılan bir bloğun dayanıp dayanmayacağı.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Bu birim dosyalarını bellekte tutuyor: Hiçbir disk denetlenmedi.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Okunanların yalnızca %%1 kadarı diskten geldi. Makinenin belleğine sığandan fazlasını denetleyin.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Bu birimin arkasındaki disk görülemiyor; bu yüzden geri okunanlar bir önbellekten gelmiş olabilir.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Denetim durduruldu: Geri okumadıklarının durumu bilinmiyor.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Hızlı denetim yalnızca birkaç yere yazar. Sahte kapasitelerin çoğunu saniyeler içinde bulur; bir şey bulmaması hiçbir şeyi kanıtlamaz.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Planlanandan azı denetlendi: Alanı başka programlar kaplamış olabilir.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Yazıldı</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Geri okundu</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>%1 sonra okuma</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Yazıldığı gibi</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Değişti</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Okunamadı</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Yazılamadı</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Ancak 2. denemede</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Diskten okunan</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>Ve bir yerde daha.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>Ve %1 yerde daha.</numerusform>
        </translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>%1 kapasitesi</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Hazırlanıyor…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Örnekler yazılıyor</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Yazılıyor</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Geri okunuyor</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bekleniyor</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Yeniden okunuyor</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Yazılmadı</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Okunamıyor</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Yazılamıyor</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Okuma</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Bu birimin son ölçümüyle karşılaştır</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <translation>Zaman içinde yazma</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Zaman içinde okuma</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Ölçüm karşılaştırması</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>%1 ölçüm karşılaştırıldı</translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Denemek için tarayın</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Diskin değeri değil</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message>
        <source>Comparing %1 runs</source>
        <translation>%1 ölçüm karşılaştırılıyor</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Karşılaştırma görüntüsünü paylaş</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Karşılaştırma referansı</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <translation>Tamamlandı</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Tanılama verilerini ekle</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Bu oturumdaki son etkinlikler. Dosya, sunucu ve hesap adları, herhangi bir şey kaydedilmeden önce anonim simgelerle değiştirilir.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Görüntüle…</translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Testleri ve ayarları gizle</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Testleri ve ayarları göster</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Bu raporu yeniden adlandırın. Ad, paylaştığınız görüntülerde de görünür.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Rapor başlığı</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Rapor görüntüsünü paylaş</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Ölçümü sil</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Daralt</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Diskin değeri değil</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Disk doldurulsun mu?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Test, boş alan %1 kalana dek yazar, sonra hepsini siler. Büyük bir sürücüde bu uzun sürer ve test bitene dek orada yer gerektiren diğer her şey yersiz kalır.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Diski doldur</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Klasörde göster: %1</translation>
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
        <translation>Önceki denetimler</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <translation>Arızalı</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Doğrulandı</translation>
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
        <translation>&amp;Geçmiş</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Metin olarak kopyala</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown tablosu olarak kopyala</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Ölçümleri kaydet…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV olarak dışa aktar…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Okuma</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Sil: %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Bu ölçümü sil</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Ölçüme hazır</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Başlamak için bir birim seçin</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Soldaki testleri ve ayarları düzenleyin, sonra “Ölçümü başlat” düğmesine basın.</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Araç çubuğundan bağlı bir birim veya klasör seçin.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <translation>Uyarı</translation>
    </message>
</context>
<context>
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %%2</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>Sürücü %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Tüm ölçüm</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>the volume</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Birim</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Menü çubuğu</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Karşılaştırılacak ölçümleri seçin</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Önceki ölçümler</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Karşılaştır</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Karşılaştır (%1)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>geçerli ölçüm</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Kayıtlı tüm ölçümler silinsin mi?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Tümünü sil</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Working folder:</source>
        <translation>Çalışma klasörü:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>geçicidir, orada oluşturulup silinir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Farklı kaydet</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick ölçümleri</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Disk hızı ve birim çözümleyicisi</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Kendinizinkini ölçmek için tarayın</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Bildirim türü</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Özellik isteği</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Özet — tek satırlık açıklama</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>%1 ne yapsın isterdiniz?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Ne oldu? Yeniden oluşturma adımları ve beklediğiniz sonuç.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>E-posta — isteğe bağlı, yanıt almak isterseniz</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>Şunlar eklenecek: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Teşekkürler</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Sorun bildir</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Bildiriminiz alındı. %1 uygulamasının gelişmesine yardımcı olduğunuz için teşekkürler.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Web üzerinden bildirin:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Gönder</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Ölçümü başlat</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Zaman içinde aktarım hızı</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Gölgeli: her testin son üçte biri; bunun ortancası sürdürülen hızdır. Üçgenler: tepe hız ve en düşük hız.</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Sıralı yazma</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Sıralı okuma</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Raporu yeniden adlandır…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Rapor görüntüsünü paylaş…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Değerleri kopyala</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Metin olarak kopyala</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown tablosu olarak kopyala</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Ölçüm dosyasını kaydet…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV olarak dışa aktar…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Bu birimin son ölçümüyle karşılaştır</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Ölçümü sil</translation>
    </message>
</context>
<context>
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Kapasite denetimi sürüyor</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Ölçüm sürüyor</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Ölçüm başarısız oldu</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>yazma %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>okuma %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Ölçüm tamamlandı</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Kapasite denetimi tamamlandı</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Kapasite denetimi başarısız oldu</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>Bu değerler hakkında</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Bu notlar ne anlama gelir</translation>
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
        <translation>Dışa aktar…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Bu değerleri metin dosyası olarak kaydet</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Yazma bloğu</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Okuma bloğu</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Rastgele blok</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>Önbelleği atla</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <translation>Paylaş</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Görüntüyü kopyala</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Farklı kaydet…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>E-posta ile gönder…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Metin olarak kopyala</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown tablosu olarak kopyala</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Ölçüm dosyasını kaydet…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Ölçümleri kaydet…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV olarak dışa aktar…</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Testler ve ayarlar</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testler</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Denetleniyor…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Ölçülüyor…</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 ücretsizdir.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>İşinize yarıyorsa desteğiniz onu ayakta tutmaya yardımcı olur.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Ko-fi’de destek ver</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Şimdi değil</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Bir hafta gizle</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>%1 için zaten destek verdim</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Yazma</translation>
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
        <translation>Ondel Tarnwick hakkında</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Güncellemeleri denetle…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Klasör seç…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Ölçüm dosyası aç…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Öl&amp;çüm</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Ölçümü başlat</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Kapasiteyi denetle…</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Karşılaştır</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Silmeyi geri al</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Tarnwick yardımı</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Sorun bildir…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Tarnwick’e destek ver…</translation>
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
        <translation>Tüm boş alan</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>%1 sonra</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Seçilen alanın tamamına dağılmış örnekler yazılır, geri okunur ve silinir. Saniyeler sürer, sahte kapasitelerin çoğunu bulur ve bulmazsa hiçbir şeyi kanıtlamaz.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>%1 yazılır, geri okunur, karşılaştırılır ve silinir. Dosyalarınıza dokunulmaz.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Tüm boş alan yazılır, geri okunur, karşılaştırılır ve boşaltılır. Dosyalarınıza dokunulmaz.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Tüm boş alan, yaklaşık %1, yazılır, geri okunur, karşılaştırılır ve boşaltılır. Büyük bir birimde bu saatler sürer; bu sırada birim diğer programlar için doludur. Dosyalarınıza dokunulmaz.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>Denetim: %%1</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>bir bölümde</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>%1 bölümde</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 – %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Denetlendi</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Metin kopyalandı</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Metin kopyalanamadı.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Dosya kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>“%1” olarak kaydedildi</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>bitti</translation>
    </message>
    <message>
        <source>running</source>
        <translation>sürüyor</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>sırada</translation>
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
        <translation>birkaç saniye</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>yaklaşık %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>yaklaşık %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>yaklaşık %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Kalan süre: %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>Bu testte kalan süre: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 işlem</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Hazırlanıyor…</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%%1</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::RunExports</name>
    <message>
        <source>%1 runs</source>
        <translation>%1 ölçüm</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Metin kopyalandı</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Tablo kopyalandı</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Metin kopyalanamadı.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Ölçüm listeleri</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick ölçümleri</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>CSV tabloları</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Dosya kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>“%1” olarak kaydedildi</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>referans</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Diskin değeri değil: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Diskin değerleri değil: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Rastgele %1 okuma</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Rastgele %1 yazma</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Dosya işlemleri</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Yazma/okuma</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Rastgele</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dosya sistemi</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapasite</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Boş</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Önbellek</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>Atlandı</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>Önbellekli</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Değerler kopyalandı</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Değerler kopyalanamadı.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, diskin değeri değil</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
    <message>
        <source>Image copied</source>
        <translation>Görüntü kopyalandı</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Görüntü kopyalanamadı.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Görüntü kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>“%1” olarak kaydedildi</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Klasör açılamadı.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Hiçbir e-posta programı açılamadı.</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::TargetFacts</name>
    <message>
        <source>Sparse files</source>
        <translation>Seyrek dosyalar</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Klonlama</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Anlık görüntüler</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Sabit bağlar</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Sembolik bağlar</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Duyarlılık bilinmiyor</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>Harf duyarlı</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Harf duyarsız</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Klasör açılamadı.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dosya sistemi</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>En uygun G/Ç boyutu</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Blok boyutu</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>En uzun dosya adı</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 karakter</translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>En uzun yol</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapasite</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Boş</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Bilinmiyor: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>S.M.A.R.T. değeri yok: %1</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Güncellemeleri kendiliğinden denetle</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Yaklaşık günde bir kez yeni sürüm arar ve kurmadan önce sorar. Kapalıyken Tarnwick yalnızca “Güncellemeleri denetle” seçildiğinde denetler.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Şimdi denetle</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Bu derleme kendini güncellemez. Geliştirme derlemeleri güncelleme kaynağı olmadan oluşturulur; böylece kendilerini bir yayın sürümüyle değiştiremezler.</translation>
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
        <translation>Tarnwick’e destek ver</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick ücretsizdir ve tek bir geliştirici tarafından yapılır. Destek, barındırma giderlerini ve onu sürdürmek için gereken zamanı karşılar.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Ko-fi’de destek ver…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Tarnwick’e zaten destek verdim</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Kenar çubuğunun altındaki destek notunu gizler.</translation>
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
        <translation>Zaman içinde aktarım hızı</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Simge durumuna küçült</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Geri yükle</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ekranı kapla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>%1 ölçüm silindi</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Ölçüm silindi</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
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
        <translation>Yazılım güncellemesi</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Sürüm notları</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %%2</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Bu sürümü atla</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Güncellemeler kendiliğinden denetlensin mi?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Güncellemeler denetleniyor…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Sürümünüz güncel</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Yeni bir %1 sürümü var</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Güncelleme indiriliyor…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Güncellemenin imzası denetleniyor…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>Güncelleme kurulmaya hazır</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Güncellemeler denetlenemedi</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Güncelleme alınamadı</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 yaklaşık günde bir kez yeni sürüm arayabilir. Sizinle veya disklerinizle ilgili hiçbir şey göndermez ve bir şey indirmeden önce sorar.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 en yeni sürümdür.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>Kurulu sürüm: %1. %2 sürümünün indirme boyutu: %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2, geliştiricisi tarafından imzalanmıştır. Buradan sonrasını sisteminizin yazılım kurucusu üstlenir.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Kendiliğinden denetle</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Güncellemeyi kur</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Denetleme</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Sonra anımsat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Güncelleme sunucusuna ulaşılamadı. İnternet bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Güncelleme sunucusunun yanıtı okunamadı.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>Bu derlemenin güncelleme sunucusuna güvenli bir bağlantıyla ulaşılmıyor; bu yüzden hiçbir istek gönderilmedi.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Yeni bir %1 sürümü var ama güncelleme sunucusu, onu güvenle indirmek için gerekenleri bildirmiyor.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Güncelleme indirilemedi. İnternet bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>İndirilen dosyanın boyutu güncellemeninkiyle uyuşmuyor, bu yüzden dosya silindi.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>İndirilen dosya %1 geliştiricisi tarafından imzalanmamış, bu yüzden silindi.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>Geçici klasörde güncelleme için yeterli yer yok.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Güncelleme geçici klasöre yazılamadı.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>Bu sistemde güncelleme paketini açan bir program yok.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Birim seçin</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Birim seçilmedi</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Bağlı birimler</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Klasör seç…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Kapasiteyi denetle…</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Sürdürülen: testin son üçte birinin ortanca hızı; uzun bir kopyalama bu hızda durulur. Tepe ve en düşük, testin en hızlı ve en yavaş onda bir saniyesidir.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Verileri sistem belleğine uğratmadan geçirir; böylece önbellek değil disk ölçülür.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Bu birime yapılan uzun bir kopyalama gibi, büyük bir dosyayı başından sonuna yazar ve diske boşaltır.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Bu birimden yapılan uzun bir kopyalama gibi, büyük bir dosyayı başından sonuna okur.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Dosyanın dağınık yerlerinden, çoğu program gibi birer birer blok okur: Aynı anda birden çoğu, ne kadar beklendiğini değil sürücünün kuyruğunu ölçerdi; IOPS, saniyedeki bu tür işlemlerdir.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Dosyanın dağınık yerlerine, çoğu program gibi birer birer blok yazar: Aynı anda birden çoğu, ne kadar beklendiğini değil sürücünün kuyruğunu ölçerdi; IOPS, saniyedeki bu tür işlemlerdir.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Boş dosyalar oluşturur, arar, yeniden adlandırır ve siler; değer, bir saniyede kaç dosya oluşturduğudur.</translation>
    </message>
</context>
</TS>
