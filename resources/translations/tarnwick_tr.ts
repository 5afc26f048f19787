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
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Yeterli alan yok: Gereken %1, boş olan yalnızca %2.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>G/Ç hatası: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Oraya yazılamadı. Birim salt okunur olabilir veya klasör yazmaya izin vermiyor olabilir.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>Test dosyası, rastgele blok boyutu için çok küçük.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Sıralı yazma</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Sıralı okuma</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Rastgele okuma</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Rastgele yazma</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Dosya işlemleri</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>dosya/s</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>en kötü %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Ölçüm sırasında klasör silindi veya bulunduğu birim çıkarıldı.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Birim çıkarıldı veya sunucusuna ulaşılamıyor.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>Sürücü bir hata bildirdi veya ölçüm sırasında çıkarıldı.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>Birim yalnızca okunabiliyor: Sistemler, üzerinde bir hata bulduklarında bu kipe geçer.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>Birim ölçüm sırasında doldu veya birimdeki kotanız tükendi.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>Dosya sistemi veya bu oturumun bir sınırı bu boyutta dosyalara izin vermiyor.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>Klasörün izinleri ölçüm sırasında değişti veya sistem orada bunu yasaklıyor.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>Bu boyutta bloklar için yeterli bellek yok.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Şu anda çok fazla dosya açık; bazı programları kapatıp yeniden deneyin.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
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
        <source>The answer&apos;s head is too long</source>
        <translation>Yanıtın üst bilgisi çok uzun</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Kullanılabilecek bir vekil sunucu yok</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>libcurl.so.4 yüklenemiyor</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Bildirim, ağ erişimi olmayan bu yalıtılmış ortamdan gönderilemiyor.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
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
        <source>Capacity of the volume</source>
        <translation>Birimin kapasitesi</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Okuma</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Hiçbir denetimin söyleyemeyeceği şeyler: dosyalarınızın altındaki alanın sağlam olup olmadığı, sürücünün yedekte ne tuttuğu ve onarılan bir bloğun dayanıp dayanmayacağı.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Bu dosya sistemi, yazmadan yer ayırmadığından örnekler dağıtılamadı. Sonuç, birimin boyutu hakkında bir şey söylemez: Hızlı olmayan bir denetim yapın.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Hızlı denetim yalnızca birkaç yere yazar: Aralarında kalan yerlere bakılmadı.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Hızlı denetim yalnızca birkaç yere yazar. Sahte kapasitelerin çoğunu saniyeler içinde bulur; bir şey bulmaması hiçbir şeyi kanıtlamaz.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>Planlanandan azı denetlendi: Birim çok erken doldu. Dosya sisteminin kendi verilerini yitirmiş olabilir.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Planlanandan azı denetlendi: Alanı başka programlar kaplamış olabilir.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Bu birim dosyalarını bellekte tutuyor: Hiçbir disk denetlenmedi.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Okunanların yalnızca %%1 kadarı diskten geldi. Bilgisayarın belleğine sığandan fazlasını denetleyin.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Bu birimin arkasındaki disk görülemiyor; bu yüzden geri okunanlar bir önbellekten gelmiş olabilir.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>Gerçek boyutunun ötesine yazılanlar kaybolur veya birimdeki başka verileri yok eder. Gerekenleri kopyalayıp alın ve bu birime güvenmeyin.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Denetim durduruldu: Geri okumadıklarının durumu bilinmiyor.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Bu dosya sistemi, sağlama toplamlarıyla uyuşmayan hiçbir şeyi döndürmez: Değişmiş veriler bu birimde okunamaz.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>%1 kapasitesi</translation>
    </message>
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
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Bu dosya sistemi örnekleri dağıtamıyor: Tek bir yerde yalnızca %1 denetlendi ve yazılanı koruyor.</translation>
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
        <source>about %1</source>
        <translation>yaklaşık %1</translation>
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
        <source>In one place</source>
        <translation>Tek bir yerde</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Okuma</translation>
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
        <translation>Kullanım: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Disk hızı ve birim çözümleyicisini açar, ilk klasörü seçer ve ölçüm dosyalarını (*.tarnwickrun) gösterir.
  --check-capacity  o klasörün biriminin denetimine geçer
  --choose-folder   bir klasör sorar
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1, açılabilecek bir klasör veya ölçüm dosyası değil.</translation>
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
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Zaman içinde yazma</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Zaman içinde okuma</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>referans</translation>
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
        <translation>Ölçüm karşılaştırması</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>%n ölçüm karşılaştırıldı</numerusform>
        </translation>
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
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>%n ölçüm karşılaştırılıyor</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Karşılaştırma görüntüsünü paylaş</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Karşılaştırma referansı</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Rastgele okuma</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Rastgele yazma</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Dosya işl.</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>işlem/s</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 boş</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Diski dolduran test</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>%1 test</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>O/Y %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>Y %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>O %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>Rast. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Önbelleksiz</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>Önbellekli</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
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
        <translation>Bu oturumdaki son etkinlikler. Dosya, sunucu ve hesap adları, herhangi bir şey kaydedilmeden önce anonim belirteçlerle değiştirilir.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Görüntüle…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
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
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick ölçümleri</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>“%1” hasarlı veya bir Tarnwick ölçümü değil.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>“%1”, açılabilecek bir klasör veya ölçüm dosyası değil.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>“%1” ve %2 dosya daha hasarlı veya Tarnwick ölçümü değil.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>“%1” ve %2 öge daha, açılabilecek bir klasör veya ölçüm dosyası değil.</numerusform>
        </translation>
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
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Ölçüm: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>diskin değeri değil</translation>
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
        <translation>Test, boş alan %1 kalana dek yazar, sonra hepsini siler. Büyük bir sürücüde bu uzun sürer ve test bitene dek orada yer gerektiren diğer her şey yer sıkıntısı çeker.</translation>
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
    <name>Format</name>
    <message>
        <source>%1 %</source>
        <extracomment>A percentage: %1 is the number</extracomment>
        <translation>%%1</translation>
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
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Arıza yakın</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Doğrulandı</translation>
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
        <translation>Kritik uyarı</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Sıcaklık</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Kullanılan ömür</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Kalan yedek</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Yedek eşiği</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Çalışma süresi</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Açılıp kapanma sayısı</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Kafa park etme sayısı</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Güvensiz kapanmalar</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Yazılan veri</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Okunan veri</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Ana makine okuma komutları</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Ana makine yazma komutları</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Denetleyici meşguliyeti</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Yeniden atanmış sektörler</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Bekleyen sektörler</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Düzeltilemeyen sektörler</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Bildirilen düzeltilemeyen hatalar</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Yeniden dönme denemeleri</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Arabirim CRC hataları</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Ortam hataları</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Hata günlüğü kayıtları</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Diskler</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Yedek eşiğin altında</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Güvenilirlik azaldı</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Yedek besleme arızası</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 yıl</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>%1 / %2 disk yanıt verdi</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>bu yolun arkasında aygıt yok</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>%1 arkasında disk yok</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 bir blok aygıtı değil</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 uyuyup uyumadığını bildirmiyor, bu yüzden ona dokunulmadı</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 uyuyor, bu yüzden ona dokunulmadı</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 S.M.A.R.T. desteklemiyor veya S.M.A.R.T. kapalı</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 S.M.A.R.T. arabirimine sahip değil</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 S.M.A.R.T. komutlarını iletmiyor</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 NVMe sağlık günlüğünü vermiyor</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 yalnızca bir yönetici tarafından sorgulanabilir</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 bu sürecin erişimi dışında</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 yanıt vermiyor</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2, %1 için yanıt vermiyor</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 yanıt vermiyor</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1, NVMe sürücülerinin sağlığını okumaz (2.10 sürümü okur)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2’de %1 için sağlık değerleri yok</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2’de %1 için sağlık kararı yok</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2, %1 arkasında bir sürücü tanımıyor</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>%1 için ATA S.M.A.R.T.; disk, kararını değerler olmadan verdi</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>%1 için ATA S.M.A.R.T.</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>%1 için NVMe sağlık günlüğü</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>%1 için UDisks2, %2 min önce okundu</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>%1 için UDisks2</translation>
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
        <translation>%1 ve %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 gün</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Arıza yakın</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Doğrulandı</translation>
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
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Okuma</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Sil: %1</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Bu ölçümü sil</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Durduruluyor, dosyalar siliniyor</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>Denetim JSON olarak ifade edilemedi.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>Harf duyarlı</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Harf durumunu koruma</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Seyrek dosyalar</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Sabit bağlar</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Sembolik bağlar</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Genişletilmiş öznitelikler</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Adlandırılmış akışlar</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Erişim denetim listeleri</translation>
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
        <source>Journal</source>
        <translation>Günlük</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Günlük etkin</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Mühürlü</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>evet</translation>
    </message>
    <message>
        <source>no</source>
        <translation>hayır</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>bilinmiyor</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapasite</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Kullanılabilir</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Kullanılan</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Şifreli</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Bağlama noktası</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Aygıt</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Blok boyutu</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>En uygun aktarım</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>En uzun ad</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>En uzun yol</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>En çok bağ</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Bağlanma yolu</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Kaynak</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Arabirim</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(dikkat)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dosya sistemi</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Sağlık</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>S.M.A.R.T. değeri yok: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>pencereyle birlikte gelen %1 başlatılamadı</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 yanıt vermiyor</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 bir klasör</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 sıradan bir dosya değil</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 zaten var ve ölçüm içermiyor; --force onun yerine yazar</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Bu ölçümün bir değeri, bir dosyada tutulabilecek sınırın ötesinde.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 yazılamadı: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>Geçmiş yazılamadı.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Sonuç yazılamadı</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 bir klasör değil</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 bu yalıtılmış ortamda yok; ortamda makinenin klasörlerinden yalnızca bazıları bulunur</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 yalıtılmış ortamın kendisine aittir; makinenin bu addaki klasörü ondan gizlenmiştir.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>Bu klasörde başka bir ölçümün dosyaları kullanımda; bu yüzden silinmedi.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: Ortama boşaltma başarısız oldu (%2); yazılanların tümü orada olmayabilir.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Hazırlık: Ortama boşaltma başarısız oldu (%1); yazılanların tümü orada olmayabilir.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Ölçüm dosyası geçici klasörünüze yazılamadı.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>Ölçüm geçmişe eklenemedi.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1, bir ölçüm dosyasının olabileceğinden büyük (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>%1 okunamadı</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standart girdi</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>standart girdi, bir ölçüm dosyasının olabileceğinden büyük (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>standart girdi bir ölçüm dosyası değil: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 bir ölçüm dosyası değil: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>Görüntü çizilemedi: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>Görüntü çizilemedi veya geçici klasörünüze yazılamadı.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>Koyu renklerle çizer</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Ölçüm dosyası, &quot;run --handoff&quot; komutunun tek bir ölçüm için yazdığı dosyadır. Görüntü, 1616 piksel genişliğinde,
saydam kenarlı bir PNG dosyasıdır; yolu yazdırılır. Ekran gerekmez. Aynı başlıklı bir görüntü öncekinin yerini
alır; oturumunuz bitene veya sistem geçici klasörünü boşaltana dek kalır.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Çıkış durumu: 0 bitti, 1 bir dosya okunamadı veya görüntü oluşturulamadı, 2 yanlış kullanım.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Paylaşmak için bir ölçümün veya birkaç ölçüm karşılaştırmasının görüntüsünü çizer</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Ne kadar yazılıp geri okunacağı (varsayılan: tüm boş alan)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Her durumda ne kadarın boş kalacağı (varsayılan: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Aralık boyunca örnekler, saniyeler içinde: sahte kapasiteyi
bulur, bulmazsa hiçbir şeyi kanıtlamaz</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Her şeyi S saniye sonra bir kez daha okur</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Tek bir JSON nesnesi yazdırır: karar, tümce ve bulunan her şey</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>FOLDER içindeki gizli bir klasöre her bloğu farklı dosyalar yazar, sistemin önbelleğini atlayarak geri okur, tümünü
karşılaştırır ve Ctrl+C sonrasında da siler. Hiçbir dosyanıza dokunulmaz; ancak sahte kapasiteli bir aygıtta gerçek
boyutun ötesine her yazma, aygıtın her kullanımı gibi, oradaki verileri yok edebilir. --quick yalnızca örnekler
yazar. Zorla sonlandırılan bir denetimin dosyalarını FOLDER içindeki sonraki ölçüm veya denetim siler.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES düz rakamlar veya K, M, G, T ile rakamlardır (KiB, MiB, GiB, TiB: 1024’lük adımlar).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Çıkış durumu: 0 sorun bulunmadı, 1 başarısız, 2 yanlış kullanım, 3 kusur bulundu, 130 bir sinyalle durduruldu;
o ana dek bulunanlar yazdırılır.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Bir birimin söylediği kadar büyük olup olmadığını ve verileni koruyup korumadığını denetler</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>text (varsayılan), markdown, csv veya json olarak</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>--output seçeneğinin içeriği ne olursa olsun bir dosyanın yerine yazmasına izin verir</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Bilgileri tek bir JSON nesnesi olarak yazdırır</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Listeyi tek bir JSON dizisi olarak yazdırır</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Hiçbir yere hiçbir şey yazılmaz. Sistemin bildirmedikleri &quot;--&quot; veya &quot;bilinmiyor&quot; olarak gösterilir ve JSON
nesnesine alınmaz.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Her dosya sistemi bir kez, en kısa bağlama noktasıyla listelenir. Sistemin, paketlerinin ve kapsayıcılarının
kendileri için bağladıkları dışarıda bırakılır. Zamanında yanıt vermeyen bir sunucunun kapasitesi gösterilmez.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>Sürücüye yalnızca bakılır: Uyuyan sürücü uyandırılmaz ve içinde hiçbir şey açılmaz. Sağlık bilgisinin nereden
geldiğini veya neden olmadığını &quot;facts&quot; bildirir.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>FOLDER klasörünü barındıranları gösterir: birim, dosya sistemi, sürücü ve sağlığı</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Bağlı birimleri listeler</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>FOLDER klasörünü barındıran sürücünün sağlığını yazdırır</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Kullanım: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Bu metni gösterir</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Terminalde Ondel Tarnwick: bir diskin ne kadar hızlı olduğunu disk üzerinde ölçer ve iz bırakmaz.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Bu metni, bir komuttan sonra ise o komutun seçeneklerini gösterir</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Sürümü gösterir</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>&quot;export&quot; işleminin yazdığı dosya</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>&quot;delete&quot; işleminin tüm ölçümleri silmesine izin verir</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION şunlardan biridir:</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>her ölçüm için, adıyla başlayan bir satır, en yenisi önce (varsayılan)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>ölçümleri &quot;show&quot; gibi, --format biçiminde yazdırır</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>ölçümleri --output ile verilen FILE dosyasına, --format biçiminde veya FILE adının gösterdiği
biçimde yazar: .csv, .json, .md, .txt veya tek bir ölçüm için .tarnwickrun</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>ölçümleri sormadan ve kalıcı olarak siler</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>RUN, listedeki adıyla veya kimliğinin ilk dört ya da daha çok karakteriyle belirtilir. Belirtilmezse tüm ölçümler
kastedilir; o zaman &quot;delete&quot; için --all gerekir. Açık bir pencere, ona döndüğünüz anda güncellenir. --output, var olan
bir dosyanın yerine yalnızca dosya boşsa veya ölçüm içeriyorsa yazar; --force ile başka her dosyanın yerine de yazar.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Çıkış durumu: 0 bitti, 1 böyle bir ölçüm yok veya başarısız oldu, 2 yanlış kullanım.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Pencerenin sakladığı ölçümleri listeler, gösterir, dışa aktarır veya siler</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES düz rakamlar veya K, M, G, T ile rakamlardır (KiB, MiB, GiB, TiB: 1024’lük adımlar). Bloklar 4096’lık tam
sayfalara yukarı yuvarlanır. Değerler pencereninkilerle karşılaştırılabilsin diye varsayılanlar aynıdır; sıralı
testlerin blokları dışında: Pencere, &quot;facts&quot; komutunun gösterdiği &quot;En uygun aktarım&quot; boyutunu kullanır.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Her şey FOLDER içindeki gizli bir klasöre yazılır ve sonunda, Ctrl+C sonrasında da silinir. Zorla sonlandırılan bir ölçümün
FOLDER içinde bıraktıkları başlamadan önce silinir; hâlâ kullanımda olan dosyalar bir saniye beklendikten sonra kalır.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>--handoff ve --card dosyaları oturumunuz bitene veya sistem geçici klasörünü boşaltana dek kalır. --output, var
olan bir dosyanın yerine yalnızca dosya boşsa veya ölçüm içeriyorsa yazar (bir ölçüm dosyası veya &quot;show --format&quot;
ile &quot;history export&quot; komutlarının json ya da csv olarak yazdıkları); --force ile başka her dosyanın yerine de
yazar. Açık bir pencere, --keep ile eklenen ölçümü ona döndüğünüz anda gösterir. Bir şey yazılamadığında değerler
yine de yazdırılır ve ölçüm başarısız sayılır.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Çıkış durumu: 0 bitti, 1 başarısız, 2 yanlış kullanım, 130 bir sinyalle durduruldu.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>FOLDER klasörünü barındıran dosya sistemini ölçer</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Çalıştırılacak testler, her zaman bu sırayla: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (varsayılan: tümü)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Veri dosyasının boyutu veya diskin doldurulması (varsayılan: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>--size fill ile boş bırakılan alan (varsayılan: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Çağrı başına bayt, sıralı yazma (varsayılan: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Çağrı başına bayt, sıralı okuma (varsayılan: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Rastgele işlem başına bayt (varsayılan: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Her rastgele testteki işlem sayısı (varsayılan: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Dosya işlemleri testindeki dosya sayısı (varsayılan: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Sıradan programlardaki gibi, sistemin veri dosyasını önbelleğe almasına izin verir</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>İki örnekleme arasındaki en az saniye (varsayılan: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Tek bir JSON nesnesi yazdırır: plan, her değer, her örnek, tarih,
klasör, birim, dosya sistemi, sürücü, çekirdek; &quot;evidence&quot; ve
&quot;remarks&quot; altında gözlenenler ve bunların anlamı</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Pencere, &quot;show&quot; ve başkaları için oraya bir ölçüm dosyası yazar</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Ölçümü pencerenin geçmişine ekler</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Pencere ve &quot;show&quot; için bir ölçüm dosyası yazar, yolunu son satırda
yazdırır; --json ile: nesnede &quot;handoffFile&quot; olarak</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Ölçümün paylaşılacak bir görüntüsünü açık veya koyu renklerle
çizer, yolunu son satırda yazdırır; --json ile: &quot;cardFile&quot; olarak</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Ölçüm dosyası, &quot;run --handoff&quot; ve &quot;run --output&quot; komutlarının tek bir ölçüm için yazdığı dosyadır. Pencerenin
geçmişi (history.json) ve &quot;show --format json&quot; çıktısı birkaç ölçüm içerir. &quot;-&quot; standart girdidir.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>Metin olarak çubuklar birkaç ölçümün değerlerini karşılaştırır: Her türün en büyüğü yolunu doldurur, değeri olmayan
ölçümde &quot;--&quot; durur. Satırlar terminale veya 80 sütuna sığar. Markdown tablosu forumlar içindir. CSV, her ölçüm için tablo
programlarına ve betiklere uygun düz sayılı bir satır içerir. JSON, ölçüm dosyalarının içeriklerinden oluşan bir listedir.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Gösterilemeyen bir dosya için standart hataya bir satır yazılır, ötekiler gösterilir.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Çıkış durumu: 0 tümü gösterildi, 1 tümü değil, 2 yanlış kullanım.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Ölçümleri dosyalarından gösterir, birkaçını yan yana da</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>geçmişte %1 ölçümü yok</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 birkaç ölçüme karşılık geliyor</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Ölçüm</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Başlık</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Başlatılıyor</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>Kalan süre: %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Durduruluyor, test dosyaları siliniyor</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Test dosyası hazırlanıyor, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Başlatılıyor, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Sürdürülen</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Tepe</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>En düşük</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>İşlem</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Hız</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>En kötü</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Oluşturma</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Sorgulama</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Adlandırma</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Silme</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>çizilecek RUNFILE eksik</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 en çok bir yıl olabilir</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>%1 diye bir seçenek yok</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 değer almaz</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 için bir değer gerekli: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 yalnızca %2 ile kullanılır</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 için %2 ile %3 arasında bir tam sayı gerekli, verilen: %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 için 4096, 64K veya 5GiB gibi, %2 ile %3 arasında bir bayt sayısı gerekli, verilen: %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 için 0 veya daha büyük bir saniye sayısı gerekli, verilen: %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>FOLDER eksik</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>bir seferde tek FOLDER</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 text, markdown, csv veya json olabilir, verilen: %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 için bir dosya adı gerekli</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 argüman almaz</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 için %2 gerekli</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>bir ölçüm dosyası tek ölçüm içerir, istenen: %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>FILE adı .tarnwickrun, .csv, .json, .md veya .txt ile bitmiyorsa %1 gerekli</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 için RUN veya %2 gerekli</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 yalnızca %2 ve %3 ile kullanılır</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 için list, show, export ve delete kullanılabilir, verilen: %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>komut eksik; bkz. %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>%1 diye bir komut yok; bkz. %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>ölçülecek FOLDER eksik</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>denetlenecek FOLDER eksik</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>bir seferde tek FOLDER, fazladan verilen: %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>FOLDER adı boş</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: %2 diye bir test yok, yalnızca %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 light veya dark olabilir, verilen: %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>gösterilecek FILE eksik</translation>
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
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Uyarı</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Tüm boş alan</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
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
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1 – %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
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
    <name>LiveRunPane</name>
    <message>
        <source>%1: %2 %</source>
        <extracomment>%1 is the name of a test, %2 how much of it is done</extracomment>
        <translation>%1: %%2</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <extracomment>%1 is a rate, %2 its unit, %3 how much is done of how much</extracomment>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>Sürücü %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>bitti</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>sürüyor</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>sırada</translation>
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
        <translation>Birkaç saniye kaldı</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>Bu testte birkaç saniye kaldı</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Yaklaşık %n s kaldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>Bu testte yaklaşık %n s kaldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Yaklaşık %n min kaldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>Bu testte yaklaşık %n min kaldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Yaklaşık %n h kaldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>Bu testte yaklaşık %n h kaldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 / %2 işlem</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Hazırlanıyor…</translation>
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
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
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
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Karşılaştır</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Temizle</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Karşılaştır (%n)</numerusform>
        </translation>
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
        <translation>şimdiki ölçüm</translation>
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
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>Test sırasında yazılanların diske ulaşan bölümü en çok %1.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>Test sırasında yazılanların diske ulaşan bölümü %1.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>Okunanların diskten gelen bölümü en çok %1.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>Okunanların diskten gelen bölümü %1.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Yazılanların tümü diske boşaltılamadı: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>Test dosyası diske boşaltılamadı: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>İlk %2 boyunca %1, sonra %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>Sürücü %2 sonra %1 sıcaklığa ulaştı (sınır %3); o andan sonra hız %4 daha düşüktü.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>1 s üzerinde bir duraklama: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>1 s üzerinde %1 duraklama, en uzunu %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>Test sırasında başka programlar aynı diskte %1 okuyup yazdı.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>Sürücünün %1 bağlantısı %2 hızında çalışıyor; sürücü %3 hızına çıkabilir.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>Bölüm, %2 boyutundaki bir fiziksel bloğun başından %1 sonra başlıyor.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>Birimin yalnızca %1 kadarı boştu.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Testin verileri (%1) bir önbelleğe (%2) sığabilir.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>Bilgisayar pille çalışıyordu.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>İşlemci güç tasarrufuna ayarlıydı.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>Bilgisayar pille çalışıyordu, işlemcisi güç tasarrufuna ayarlıydı.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>Dosya sistemi değişiklikleri yeni yerlere yazar ve verilerin sağlama toplamlarını hesaplar.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>Dosya sistemi değişiklikleri yeni yerlere yazar.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>“Önbelleği atla” seçeneğini açın. Açıksa bilgisayarın belleğinden büyük bir boyut seçin.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Veri emanet etmeden önce sürücünün S.M.A.R.T. durumuna ve sistemin günlüğüne bakın.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Sistemden atlaması istendiği hâlde veriler bir önbellekten geçti.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Bilgisayarın belleğinden büyük bir boyut seçin veya alttaki diski başka bir dosya sistemi üzerinden test edin.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Bir seferde bundan fazlasını aktarırken düşük hızı hesaba katın.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Sürücüye daha çok hava veya bir soğutucu sağlayın ve soğuyunca yeniden ölçün.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Yeniden ölçün. Duraklamalar yinelenirse sürücünün S.M.A.R.T. durumuna ve kablosuna bakın.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Diski başka hiçbir şey kullanmazken yeniden ölçün.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Başka bir bağlantı noktası, yuva veya kablo deneyin.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Bölümü, 1 MiB katlarından birinde başlayacak biçimde yeniden oluşturun. Bu, içindekileri siler.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Biraz yer açın: Birçok sürücü ve dosya sistemi dolduğunda yavaşlar.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Daha büyük bir boyut seçin ve “Önbelleği atla” seçeneğini açın.</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Bilgisayar prize takılıyken ve güç tasarrufu kapalıyken yeniden ölçün.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>Bu birimin arkasındaki disk görülemiyor; bu yüzden diskin kendisinin ne yaptığını hiçbir şey göstermiyor.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Bu birim dosyalarını bellekte tutuyor; hiçbir disk ölçülmedi.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Bir diskteki bir klasörü seçin.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Bu birim, başka bir birimdeki bir dosyadır.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>O birimin kendisini ölçmek için üzerindeki bir klasörü seçin.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>Disk bir sanal makineye ait; ana makinesi onu önbelleğe alıyor olabilir.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>Dosya sistemi sıkıştırıyor. Testin verileri sıkışmaz; bu yüzden başka dosyalar daha hızlı olabilir.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>Dosya sistemi verileri, önce günlüğüne olmak üzere iki kez yazar.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Bu klasöre masaüstünün portalı üzerinden erişildi; bu program da değerlerin bir parçasıdır.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Yalıtılmış ortamın klasörün kendisini kullanmasına izin verin ve klasörü yeniden seçin.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Geçersiz</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Dikkat</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>Bilgi</translation>
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
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Şunlar eklenecek: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — Karşılaştırma</translation>
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
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Gölgeli: her testin son üçte biri; bunun ortancası sürdürülen hızdır. Üçgenler: tepe hız ve en düşük hız.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Ölçüm</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
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
        <source>Parameters</source>
        <translation>Parametreler</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (geçersiz)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Notlar</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n ölçüm</numerusform>
        </translation>
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
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Diskin değeri değil: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Diskin değerleri değil: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Rastgele %1 okuma</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Rastgele %1 yazma</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Dosya işlemleri</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Okuma/yazma</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Boş</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Önbellek</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>Atlandı</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>Önbellekli</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Kapasite denetimi sürüyor</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Ölçüm sürüyor</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>yazma %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>okuma %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Ölçüm başarısız oldu</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Ölçüm tamamlandı</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Kapasite denetimi başarısız oldu</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Kapasite denetimi tamamlandı</translation>
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
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Yazma</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Rastgele okuma</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Rastgele yazma</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Dosya işl.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametreler</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>tepe %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>en düşük %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, tepe</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, en düşük</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, gecikme</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>Bu değerler hakkında</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>%1 sunucusu</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Ağ sunucusu</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Harici sürücü</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Ağ birimi</translation>
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
    <name>SMARTReportText</name>
    <message>
        <source>%1:</source>
        <extracomment>%1 is the name of a figure, which follows</extracomment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1  (attention)</source>
        <extracomment>Behind a figure that is a concern</extracomment>
        <translation>%1  (dikkat)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Arabirim</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Ondel Tarnwick S.M.A.R.T. raporu</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
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
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  en uygun</translation>
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
        <extracomment>Button: opens a menu</extracomment>
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
    <name>SharedImageText</name>
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
        <extracomment>Adjective: the run has come to its end</extracomment>
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
    <name>TargetFactsText</name>
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
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 harici</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 dahili</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 çıkarılabilir</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 ağ</translation>
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
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 karakter</numerusform>
        </translation>
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
        <extracomment>The free space of the volume</extracomment>
        <translation>Boş</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Bilinmiyor: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>S.M.A.R.T. değeri yok: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Test edilecek birimde bir klasör seçin (orada geçici bir çalışma klasörü oluşturulup silinir).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Seç</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>zaten açık olan pencere yanıt vermiyor; isteneni yapabildiği anda yapacak.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>zaten açık olan pencere (süreç %1) yanıt vermiyor; isteneni yapabildiği anda yapacak.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Okuma</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
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
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
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
        <extracomment>Menu entry: begins to choose runs</extracomment>
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
        <translation>Masaüstündeki gibi</translation>
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
        <translation>Dil</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Pencerenin dili</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>Pencere, Tarnwick bir sonraki kez başlatıldığında bu dile geçer.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Paylaşılan görüntüler İngilizce</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Kapalıyken metinleri pencerenin dilindedir.</translation>
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
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
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
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: %4 içinde %2 – %3 %6, son %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Henüz ölçüm yok.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Simge durumuna küçült</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Geri yükle</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ekranı kapla</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>%n ölçüm silindi</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Ölçüm silindi</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
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
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
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
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
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
        <translation>Denetlenmesin</translation>
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
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Dahili</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Harici</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Çıkarılabilir</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Birim</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Kök</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Paylaşılan klasör</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Diski doldur</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Sürdürülen: testin son üçte birinin ortanca hızı; uzun bir kopyalama bu hıza oturur. Tepe ve en düşük, testin en hızlı ve en yavaş onda bir saniyesidir.</translation>
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
        <translation>Boş dosyalar oluşturur, sorgular, yeniden adlandırır ve siler; değer, bir saniyede kaç dosya oluşturduğudur.</translation>
    </message>
</context>
</TS>
