<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>O programie %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Wesprzyj %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Podziękowania</translation>
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
        <translation>Więcej</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Obecnie niedostępne</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Obecnie niedostępne</translation>
    </message>
</context>
<context>
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Za mało miejsca: potrzeba %1, wolne jest tylko %2.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>Błąd we/wy: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Nie udało się tam zapisać. Wolumin może być tylko do odczytu albo katalog może nie zezwalać na zapis.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>Plik testowy jest za mały dla rozmiaru bloku losowego.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Zapis sekwencyjny</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Odczyt sekwencyjny</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Odczyt losowy</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Zapis losowy</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operacje na plikach</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>plików/s</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>najgorsze %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>Katalog usunięto albo jego wolumin odłączono w trakcie pomiaru.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>Wolumin odłączono albo jego serwer jest niedostępny.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>Napęd zgłosił błąd albo został odłączony w trakcie pomiaru.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>Wolumin można tylko odczytywać: systemy przechodzą w ten tryb po wykryciu na nim błędu.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>Wolumin zapełnił się w trakcie pomiaru albo wyczerpał się przydział miejsca.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>System plików lub ograniczenie tej sesji nie pozwala na pliki tego rozmiaru.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>Uprawnienia katalogu zmieniły się w trakcie pomiaru albo system tam tego zabrania.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>Za mało pamięci na bloki tego rozmiaru.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>W tej chwili otwartych jest zbyt wiele plików; zamknij kilka programów i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
        <translation>szczyt %1
min. %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>szczyt %1 · min. %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Nie udało się połączyć z serwerem. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The answer&apos;s head is too long</source>
        <translation>Nagłówek odpowiedzi jest za długi</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Nie można użyć żadnego serwera proxy</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>Nie można załadować libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Nie można wysłać zgłoszenia z tego izolowanego środowiska, które nie ma dostępu do sieci.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
        <translation>Serwer odrzucił zgłoszenie (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Możliwości woluminu</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>Czy wolumin jest tak duży, jak podaje, i czy zachowuje to, co się na nim zapisze?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Sprawdzane miejsce</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Ponowny odczyt</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Szybko: tylko próbki</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Rozpocznij sprawdzanie</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Zapisz raport…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Skopiuj</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Skopiuj raport jako tekst</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Nowe sprawdzanie</translation>
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
        <translation>Zatrzymaj</translation>
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
        <translation>Pojemność %1</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>Pojemność woluminu</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Wróć do pomiarów</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Mapa sprawdzanego miejsca</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Szybkość w kolejnych miejscach, do %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Odczyt</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Czego nie wykaże żadne sprawdzanie: czy miejsce zajęte przez pliki jest sprawne, ile napęd trzyma w rezerwie i czy naprawiony blok wytrzyma.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Ten system plików nie rezerwuje miejsca bez zapisywania go, więc nie udało się rozproszyć próbek. Wynik nic nie mówi o rozmiarze woluminu: wykonaj sprawdzanie inne niż szybkie.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Szybkie sprawdzanie zapisuje tylko w kilku miejscach: tego, co leży między nimi, nie zbadano.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Szybkie sprawdzanie zapisuje tylko w kilku miejscach. W kilka sekund wykrywa większość fałszywych pojemności; jeśli niczego nie znajdzie, niczego to nie dowodzi.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>Sprawdzono mniej, niż planowano: wolumin zapełnił się zbyt wcześnie. Mógł utracić dane samego systemu plików.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Sprawdzono mniej, niż planowano: miejsce mogły zająć inne programy.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Ten wolumin trzyma pliki w pamięci: nie sprawdzono żadnego dysku.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Tylko %1% odczytanych danych pochodzi z dysku. Sprawdź więcej, niż pomieści pamięć komputera.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>Dysku tego woluminu nie widać, więc odczytane dane mogły pochodzić z pamięci podręcznej.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>To, co zapisano ponad rzeczywisty rozmiar, przepada albo niszczy inne dane na woluminie. Skopiuj z niego to, co potrzebne, i nie polegaj na nim.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Sprawdzanie zatrzymano: nie wiadomo, w jakim stanie jest to, czego nie odczytano.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Ten system plików nie zwraca niczego, co nie zgadza się z jego sumami kontrolnymi: nie można na nim odczytać zmienionych danych.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Pojemność %1</translation>
    </message>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Ten wolumin zachowuje tylko pierwsze %1 z tego, co na nim zapisano.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Ten wolumin podaje %1, ale zachowuje tylko pierwsze %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Ten wolumin podaje %1, ale zachowuje tylko mniej więcej pierwsze %2.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Jeden blok w miejscu %1 ma zmienioną zawartość.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 blok w miejscu %2 ma zmienioną zawartość.</numerusform>
            <numerusform>%1 bloki w miejscu %2 mają zmienioną zawartość.</numerusform>
            <numerusform>%1 bloków w miejscu %2 ma zmienioną zawartość.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 blok ma zmienioną zawartość, pierwszy w miejscu %2.</numerusform>
            <numerusform>%1 bloki mają zmienioną zawartość, pierwszy w miejscu %2.</numerusform>
            <numerusform>%1 bloków ma zmienioną zawartość, pierwszy w miejscu %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 z %2 ma zmienioną zawartość, pierwszy blok w miejscu %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Jeden blok w miejscu %1 był początkowo poprawny, a później się zmienił.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 blok w miejscu %2 był początkowo poprawny, a później się zmienił.</numerusform>
            <numerusform>%1 bloki w miejscu %2 były początkowo poprawne, a później się zmieniły.</numerusform>
            <numerusform>%1 bloków w miejscu %2 było początkowo poprawnych, a później się zmieniło.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 blok był początkowo poprawny, a później się zmienił, pierwszy w miejscu %2.</numerusform>
            <numerusform>%1 bloki były początkowo poprawne, a później się zmieniły, pierwszy w miejscu %2.</numerusform>
            <numerusform>%1 bloków było początkowo poprawnych, a później się zmieniło, pierwszy w miejscu %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 z %2 było początkowo poprawne, a później się zmieniło, pierwszy blok w miejscu %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>Nie udało się odczytać jednego bloku w miejscu %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>Nie udało się odczytać %1 bloku w miejscu %2.</numerusform>
            <numerusform>Nie udało się odczytać %1 bloków w miejscu %2.</numerusform>
            <numerusform>Nie udało się odczytać %1 bloków w miejscu %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>Nie udało się odczytać %1 bloku, pierwszy w miejscu %2.</numerusform>
            <numerusform>Nie udało się odczytać %1 bloków, pierwszy w miejscu %2.</numerusform>
            <numerusform>Nie udało się odczytać %1 bloków, pierwszy w miejscu %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>Nie udało się odczytać %1 z %2, pierwszy blok w miejscu %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>Nie udało się zapisać jednego bloku w miejscu %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>Nie udało się zapisać %1 bloku w miejscu %2.</numerusform>
            <numerusform>Nie udało się zapisać %1 bloków w miejscu %2.</numerusform>
            <numerusform>Nie udało się zapisać %1 bloków w miejscu %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>Nie udało się zapisać %1 bloku, pierwszy w miejscu %2.</numerusform>
            <numerusform>Nie udało się zapisać %1 bloków, pierwszy w miejscu %2.</numerusform>
            <numerusform>Nie udało się zapisać %1 bloków, pierwszy w miejscu %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Oprócz zapisanych %2 nie udało się zapisać %1, pierwszy blok w miejscu %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Jeden blok w miejscu %1 udało się zapisać lub odczytać dopiero za drugim razem.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%1 blok w miejscu %2 udało się zapisać lub odczytać dopiero za drugim razem.</numerusform>
            <numerusform>%1 bloki w miejscu %2 udało się zapisać lub odczytać dopiero za drugim razem.</numerusform>
            <numerusform>%1 bloków w miejscu %2 udało się zapisać lub odczytać dopiero za drugim razem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 blok udało się zapisać lub odczytać dopiero za drugim razem, pierwszy w miejscu %2.</numerusform>
            <numerusform>%1 bloki udało się zapisać lub odczytać dopiero za drugim razem, pierwszy w miejscu %2.</numerusform>
            <numerusform>%1 bloków udało się zapisać lub odczytać dopiero za drugim razem, pierwszy w miejscu %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%1 z %2 udało się zapisać lub odczytać dopiero za drugim razem, pierwszy blok w miejscu %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Odczyt jednego bloku w miejscu %1 nie zgadza się z zapisem.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>Odczyt %1 bloku w miejscu %2 nie zgadza się z zapisem.</numerusform>
            <numerusform>Odczyt %1 bloków w miejscu %2 nie zgadza się z zapisem.</numerusform>
            <numerusform>Odczyt %1 bloków w miejscu %2 nie zgadza się z zapisem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>Odczyt %1 bloku nie zgadza się z zapisem, pierwszy w miejscu %2.</numerusform>
            <numerusform>Odczyt %1 bloków nie zgadza się z zapisem, pierwszy w miejscu %2.</numerusform>
            <numerusform>Odczyt %1 bloków nie zgadza się z zapisem, pierwszy w miejscu %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>Odczyt %1 z %2 nie zgadza się z zapisem, pierwszy blok w miejscu %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>Przed zatrzymaniem sprawdzanie napotkało bloki, których odczyt nie zgadza się z zapisem, pierwszy w miejscu %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>Na woluminie udało się zapisać %1 z %2, wszystko ponad to zostało odrzucone.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>Sprawdzanie zatrzymano, zanim cokolwiek odczytano.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>Sprawdzanie zatrzymano, gdy odczyt %1 z %2 zgadzał się z zapisem.</translation>
    </message>
    <message>
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Ten system plików nie potrafi rozproszyć próbek: sprawdzono tylko %1 w jednym miejscu, ta część zawiera to, co zapisano.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Próbki z całego obszaru %1 zawierają to, co zapisano, ale to nie dowód.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Próbki z całego wolnego miejsca (%1) zawierają to, co zapisano, ale to nie dowód.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Przydział miejsca na woluminie wyczerpał się po %1 z %2; ta część zawiera to, co zapisano.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>Wolumin zapełnił się po %1 z %2; ta część zawiera to, co zapisano.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Całość (%1) zgadza się z zapisem, ale pochodzi głównie z pamięci: niewiele to mówi o dysku.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Całość (%1) zawiera to, co zapisano.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Całe wolne miejsce (%1) zawiera to, co zapisano.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Rozmiar podawany</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Rozmiar rzeczywisty</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>około %1</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Sprawdzane miejsce</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 wolnego miejsca</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Próbki</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, co %2</translation>
    </message>
    <message>
        <source>In one place</source>
        <translation>W jednym miejscu</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>Przy pierwszym odczycie był poprawny.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>W miejscu %1, %2: jeden bit został odwrócony.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>W miejscu %1, %2: %3 bit został odwrócony.</numerusform>
            <numerusform>W miejscu %1, %2: %3 bity zostały odwrócone.</numerusform>
            <numerusform>W miejscu %1, %2: %3 bitów zostało odwróconych.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>przyczyna nieznana</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>W miejscu %1, %2: nie udało się odczytać (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>W miejscu %1, %2: nie udało się zapisać (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>W miejscu %1, %2: zapis lub odczyt udał się dopiero za drugim razem (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>W miejscu %1, %2: odczytano to, co zapisano gdzie indziej.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>W miejscu %1, %2: za każdym razem odczytywano blok zapisany w miejscu %3.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>W miejscu %1, %2: odczytano to, co zapisano w miejscu %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>W miejscu %1, %2: odczytano zera.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>W miejscu %1, %2: odczytano coś, czego nigdy tam nie zapisano.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Napęd</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Odczytano</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>Ponownie po %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Zgodne z zapisem</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Zmienione</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Błąd odczytu</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Błąd zapisu</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Za drugim razem</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Odczytano z dysku</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>I w jeszcze jednym miejscu.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>I w jeszcze %1 miejscu.</numerusform>
            <numerusform>I w jeszcze %1 miejscach.</numerusform>
            <numerusform>I w jeszcze %1 miejscach.</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Przygotowywanie…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Zapisywanie próbek</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Odczytywanie</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Ponowne odczytywanie</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Niezapisane</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Nieczytelne</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Niezapisywalne</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Odczyt</translation>
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
        <translation>Użycie: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Otwiera analizator szybkości dysków i woluminów, wybiera pierwszy katalog i pokazuje pliki pomiarów (*.tarnwickrun).
  --check-capacity  przechodzi do sprawdzania woluminu tego katalogu
  --choose-folder   pyta o katalog
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 nie jest katalogiem ani plikiem pomiaru, który można otworzyć.</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Porównaj z ostatnim pomiarem tego woluminu</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Zapis w czasie</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Odczyt w czasie</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>odniesienie</translation>
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
        <translation>Porównanie pomiarów</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>Porównano %n pomiar</numerusform>
            <numerusform>Porównano %n pomiary</numerusform>
            <numerusform>Porównano %n pomiarów</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Zeskanuj i wypróbuj</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Wynik spoza dysku</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>Porównanie %n pomiaru</numerusform>
            <numerusform>Porównanie %n pomiarów</numerusform>
            <numerusform>Porównanie %n pomiarów</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Udostępnij obraz porównania</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Punkt odniesienia</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Odczyt losowy</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Zapis losowy</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Oper. na plikach</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>oper./s</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>wolne: %1</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Test z zapełnieniem dysku</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>Test %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>O/Z %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>Z %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>O %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>Los. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Bez buforowania</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>Z buforowaniem</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>Zakończono</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Dołącz dane diagnostyczne</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Ostatnie działania z tej sesji. Nazwy plików, serwerów i kont są zastępowane anonimowymi znacznikami, zanim cokolwiek zostanie zapisane.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Wyświetl…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
    <message>
        <source>Working folder:</source>
        <translation>Katalog roboczy:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>tymczasowy, zostanie tam utworzony i usunięty</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Pomiary programu Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>Plik „%1” jest uszkodzony lub nie jest pomiarem programu Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>„%1” nie jest katalogiem ani plikiem pomiaru, który można otworzyć.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>Uszkodzone lub niebędące pomiarami programu Tarnwick: „%1” i jeszcze %2 plik.</numerusform>
            <numerusform>Uszkodzone lub niebędące pomiarami programu Tarnwick: „%1” i jeszcze %2 pliki.</numerusform>
            <numerusform>Uszkodzone lub niebędące pomiarami programu Tarnwick: „%1” i jeszcze %2 plików.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>Nie są katalogami ani plikami pomiarów, które można otworzyć: „%1” i jeszcze %2 element.</numerusform>
            <numerusform>Nie są katalogami ani plikami pomiarów, które można otworzyć: „%1” i jeszcze %2 elementy.</numerusform>
            <numerusform>Nie są katalogami ani plikami pomiarów, które można otworzyć: „%1” i jeszcze %2 elementów.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Ukryj testy i ustawienia</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Pokaż testy i ustawienia</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Zmień nazwę tego raportu. Nazwa pojawia się też na udostępnianych obrazach.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Tytuł raportu</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Udostępnij obraz raportu</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Usuń pomiar</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Zwiń</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Wynik spoza dysku</translation>
    </message>
</context>
<context>
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Pomiar: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>wynik spoza dysku</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Zapełnić dysk?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Test zapisuje dane, aż zostanie %1 wolnego miejsca, a potem usuwa wszystko, co zapisał. Na dużym napędzie trwa to długo, a do końca testu zabraknie na nim miejsca dla wszystkiego innego.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Zapełnij dysk</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Pokaż w katalogu</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Pokaż w katalogu: %1</translation>
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
        <translation>Poprzednie sprawdzenia</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Grozi awaria</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>W normie</translation>
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
        <translation>Ostrzeżenie krytyczne</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Zużycie</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Dostępna rezerwa</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Próg rezerwy</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Czas pracy</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Liczba włączeń</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Cykle parkowania głowic</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Niebezpieczne wyłączenia</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Zapisane dane</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Odczytane dane</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Polecenia odczytu hosta</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Polecenia zapisu hosta</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Zajętość kontrolera</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Sektory realokowane</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Sektory oczekujące</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Sektory nienaprawialne</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Zgłoszone błędy nienaprawialne</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Ponowne próby rozpędzenia</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Błędy CRC interfejsu</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Błędy nośnika</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Wpisy dziennika błędów</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Dyski</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Rezerwa poniżej progu</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Obniżona niezawodność</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Awaria podtrzymania</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Nieznane</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 roku</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>odpowiedź %1 z %2 dysków</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>za tą ścieżką nie ma żadnego urządzenia</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>za %1 nie ma żadnego dysku</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 nie jest urządzeniem blokowym</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 nie podaje, czy jest uśpiony, więc nie był odpytywany</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 jest uśpiony i nie był odpytywany</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 nie obsługuje S.M.A.R.T. albo jest ono wyłączone</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 nie ma interfejsu S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 nie przekazuje poleceń S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 nie udostępnia dziennika kondycji NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 może być odpytywany tylko przez administratora</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 jest poza zasięgiem tego procesu</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 nie odpowiada</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 nie odpowiada w sprawie %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 nie odpowiada</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 nie odczytuje kondycji napędów NVMe (robi to wersja 2.10)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 nie ma wartości kondycji dysku %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 nie ma oceny kondycji dysku %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 nie zna żadnego napędu za %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>S.M.A.R.T. ATA dysku %1, który podał ocenę bez wartości</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>S.M.A.R.T. ATA dysku %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>Dziennik kondycji NVMe dysku %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 dla %1, odczyt sprzed %2 min</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 dla %1</translation>
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
        <translation>%1, a %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 dzień</numerusform>
            <numerusform>%1 dni</numerusform>
            <numerusform>%1 dni</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Grozi awaria</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>W normie</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation>&amp;Historia</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Skopiuj jako tekst</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Skopiuj jako tabelę Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Zapisz pomiary…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Eksportuj CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Odczyt</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Usuń „%1”</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Usuń ten pomiar</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Zatrzymywanie, usuwanie plików</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>Nie udało się przedstawić sprawdzenia w formacie JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>Rozróżnia wielkość liter</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Zachowuje wielkość liter</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Pliki rzadkie</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Dowiązania twarde</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Dowiązania symboliczne</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Atrybuty rozszerzone</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Nazwane strumienie</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Listy kontroli dostępu</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Klonowanie</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Migawki</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Dziennik aktywny</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Zapieczętowany</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>tak</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Pojemność</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Dostępne</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Zajęte</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Zaszyfrowany</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Zamontowany w</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Rozmiar bloku</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Optymalny transfer</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Najdłuższa nazwa</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Najdłuższa ścieżka</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Maks. dowiązań</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Podłączony przez</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Źródło</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfejs</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(uwaga)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Napęd</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Kondycja</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>brak wartości S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>nie udało się uruchomić %1, programu dostarczanego z oknem</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 nie odpowiada</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 jest katalogiem</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 nie jest zwykłym plikiem</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 istnieje i nie zawiera pomiarów; --force pozwoli go zastąpić</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Wynik tego pomiaru przekracza to, co może pomieścić plik.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>nie udało się zapisać %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>Nie udało się zapisać historii.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Nie udało się zapisać wyniku</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 nie jest katalogiem</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 nie istnieje w tym izolowanym środowisku, które ma tylko niektóre katalogi komputera</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 należy do samego izolowanego środowiska; katalog komputera o tej nazwie jest przed nim ukryty.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>Pliki innego pomiaru w tym katalogu są używane i nie zostały usunięte.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: opróżnienie buforów na nośnik nie powiodło się (%2); może tam nie być wszystkiego, co zapisano.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Przygotowanie: opróżnienie buforów na nośnik nie powiodło się (%1); może tam nie być wszystkiego, co zapisano.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Nie udało się zapisać pliku pomiaru w katalogu tymczasowym.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>Nie udało się dodać pomiaru do historii.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 jest większy, niż może być plik pomiaru (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>nie udało się odczytać %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standardowe wejście</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>standardowe wejście jest większe, niż może być plik pomiaru (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>standardowe wejście nie jest plikiem pomiaru: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 nie jest plikiem pomiaru: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>Nie udało się narysować obrazu: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>Nie udało się narysować obrazu albo zapisać go w katalogu tymczasowym.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>Rysuje w ciemnych kolorach</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Plik pomiaru to plik zapisywany przez &quot;run --handoff&quot;, dla jednego pomiaru. Obraz to plik PNG o szerokości 1616
pikseli, z przezroczystym marginesem; wypisywana jest jego ścieżka. Ekran nie jest potrzebny. Obraz o tym samym
tytule zastępuje poprzedni; pozostaje do końca sesji albo do opróżnienia katalogu tymczasowego przez system.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Kod wyjścia: 0 wykonano, 1 nie udało się odczytać pliku lub utworzyć obrazu, 2 błędne użycie.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Rysuje do udostępnienia obraz pomiaru lub porównania kilku</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Ile zapisać i odczytać (domyślnie: całe wolne miejsce)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Ile zawsze pozostaje wolne (domyślnie: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Próbki z całego zakresu, w kilka sekund: wykrywa fałszywą
pojemność, a jeśli jej nie znajdzie, niczego to nie dowodzi</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Odczytuje wszystko jeszcze raz, S sekund później</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Wypisuje jeden obiekt JSON: ocenę, zdanie i wszystko, co znaleziono</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Zapisuje w ukrytym katalogu wewnątrz FOLDER pliki o różnej zawartości każdego bloku, odczytuje je z pominięciem pamięci
podręcznej systemu, porównuje całość i usuwa, także po Ctrl+C. Pliki użytkownika pozostają nietknięte, ale na urządzeniu
o fałszywej pojemności każdy zapis ponad rzeczywisty rozmiar może zniszczyć leżące tam dane, jak przy każdym jego użyciu.
--quick zapisuje tylko próbki. Pliki przerwanego siłą sprawdzania usuwa następny pomiar lub sprawdzanie w FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES to same cyfry albo cyfry z K, M, G, T (KiB, MiB, GiB, TiB: mnożnik 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Kod wyjścia: 0 nie znaleziono nic złego, 1 niepowodzenie, 2 błędne użycie, 3 znaleziono defekty, 130
zatrzymano sygnałem; wypisywane jest to, co znaleziono do tej chwili.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Sprawdza, czy wolumin jest tak duży, jak podaje, i czy zachowuje zapisane dane</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>Jako text (domyślnie), markdown, csv lub json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Pozwala --output zastąpić plik o dowolnej zawartości</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Wypisuje informacje jako jeden obiekt JSON</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Wypisuje listę jako jedną tablicę JSON</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Nigdzie nic nie jest zapisywane. To, czego system nie podaje, jest oznaczone jako &quot;--&quot; lub &quot;nieznane&quot; i pomijane
w obiekcie JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Każdy system plików jest wymieniony raz, z najkrótszym punktem montowania. To, co system, jego pakiety i
kontenery montują dla siebie, jest pomijane. Serwer, który nie odpowiada na czas, nie ma podanej pojemności.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>Stan napędu jest tylko odczytywany: uśpiony napęd nie jest budzony i nic nie jest w nim włączane. Skąd pochodzą
dane o kondycji albo dlaczego ich nie ma, podaje &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Pokazuje położenie FOLDER: wolumin, system plików, napęd i jego kondycję</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Wypisuje zamontowane woluminy</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Wypisuje kondycję napędu, na którym jest FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Użycie: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Pokazuje ten tekst</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick w terminalu: szybkość dysku, mierzona na nim samym, bez pozostawiania na nim danych.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Pokazuje ten tekst, a po poleceniu jego opcje</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Pokazuje wersję</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>Plik zapisywany przez &quot;export&quot;</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Pozwala &quot;delete&quot; usunąć wszystkie pomiary</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION to jedno z</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>wiersz na każdy pomiar, od najnowszego, zaczynający się od jego nazwy (domyślnie)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>wypisuje pomiary tak jak &quot;show&quot;, w formacie z --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>zapisuje pomiary do FILE z --output, w formacie z --format lub z nazwy FILE: .csv, .json, .md, .txt
albo .tarnwickrun dla jednego pomiaru</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>usuwa pomiary bez pytania i na stałe</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>RUN podaje się tak, jak na liście, albo przez co najmniej cztery początkowe znaki jego id. Bez niego chodzi o
wszystkie pomiary; &quot;delete&quot; wymaga wtedy --all. Otwarte okno uwzględni zmiany zaraz po powrocie do niego. --output
zastępuje istniejący plik tylko wtedy, gdy jest pusty lub zawiera pomiary; z --force także każdy inny.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Kod wyjścia: 0 wykonano, 1 nie ma takiego pomiaru lub niepowodzenie, 2 błędne użycie.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Wypisuje, pokazuje, eksportuje lub usuwa pomiary przechowywane przez okno</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES to same cyfry albo cyfry z K, M, G, T (KiB, MiB, GiB, TiB: mnożnik 1024). Bloki są zaokrąglane w górę do
pełnych stron po 4096. Wartości domyślne są takie jak w oknie, aby wyniki dało się porównać, z wyjątkiem bloków testów
sekwencyjnych: okno używa wartości &quot;Optymalny transfer&quot;, którą pokazuje &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Wszystko jest zapisywane w ukrytym katalogu wewnątrz FOLDER i na końcu usuwane, także po Ctrl+C. To, co przerwany siłą
pomiar zostawił w FOLDER, jest usuwane przed rozpoczęciem; pliki nadal używane pozostają, po sekundzie oczekiwania.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>Pliki z --handoff i --card pozostają do końca sesji albo do opróżnienia katalogu tymczasowego przez system.
--output zastępuje istniejący plik tylko wtedy, gdy jest pusty lub zawiera pomiary (plik pomiaru albo to, co &quot;show
--format&quot; i &quot;history export&quot; zapisują jako json lub csv); z --force także każdy inny. Otwarte okno pokaże pomiar
dodany przez --keep zaraz po powrocie do niego. Gdy czegoś nie można zapisać, wyniki i tak są wypisywane, a pomiar
uznaje się za nieudany.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Kod wyjścia: 0 wykonano, 1 niepowodzenie, 2 błędne użycie, 130 zatrzymano sygnałem.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Mierzy system plików, na którym jest FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Testy do wykonania, zawsze w tej kolejności: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (domyślnie: wszystkie)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Rozmiar pliku danych albo zapełnienie dysku (domyślnie: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>Ile wolnego zostawia --size fill (domyślnie: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Bajtów na wywołanie, zapis sekwencyjny (domyślnie: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Bajtów na wywołanie, odczyt sekwencyjny (domyślnie: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Bajtów na operację losową (domyślnie: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Operacji w każdym teście losowym (domyślnie: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Plików w teście operacji na plikach (domyślnie: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Pozwala systemowi buforować plik danych, jak u zwykłych programów</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Najmniej sekund między dwiema próbkami (domyślnie: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Wypisuje jeden obiekt JSON: plan, każdy wynik, każdą próbkę, datę,
katalog, wolumin, system plików, napęd, jądro, a w &quot;evidence&quot; i
&quot;remarks&quot; to, co zaobserwowano i co z tego wynika</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Zapisuje tam plik pomiaru dla okna, dla &quot;show&quot; i dla innych</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Dodaje pomiar do historii okna</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Zapisuje plik pomiaru dla okna i dla &quot;show&quot; i wypisuje jego ścieżkę
w ostatnim wierszu; z --json: jako &quot;handoffFile&quot; w obiekcie</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Rysuje do udostępnienia obraz pomiaru w jasnych lub ciemnych kolorach
i wypisuje jego ścieżkę w ostatnim wierszu; z --json: jako &quot;cardFile&quot;</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Plik pomiaru to plik zapisywany przez &quot;run --handoff&quot; i &quot;run --output&quot;, dla jednego pomiaru. Historia okna
(history.json) i wyjście &quot;show --format json&quot; zawierają ich kilka. &quot;-&quot; oznacza standardowe wejście.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>Jako tekst: paski porównują wyniki kilku pomiarów; największy z każdego rodzaju wypełnia całą długość, a &quot;--&quot; stoi tam,
gdzie pomiar go nie ma. Wiersze mieszczą się w terminalu albo w 80 kolumnach. Tabela Markdown jest przeznaczona na fora.
CSV ma wiersz na każdy pomiar, z samymi liczbami dla arkuszy i skryptów. JSON to lista zawartości plików pomiarów.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Plik, którego nie można pokazać, otrzymuje wiersz na standardowym wyjściu błędów, a pozostałe są pokazywane.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Kod wyjścia: 0 pokazano wszystkie, 1 nie wszystkie, 2 błędne użycie.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Pokazuje pomiary z ich plików, także kilka obok siebie</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>w historii nie ma pomiaru %1</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 odpowiada kilku pomiarom</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Pomiar</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Rozpoczynanie</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>pozostało %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Zatrzymywanie, usuwanie plików testowych</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Przygotowywanie pliku testowego, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Rozpoczynanie, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Napęd</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Ciągła</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Szczytowa</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Najniższa</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Ogółem</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operacje</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Szybkość</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Najgorsze</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Tworzenie</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Odpytywanie</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmiana nazwy</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuwanie</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>brak RUNFILE do narysowania</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 to najwyżej rok</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>nie ma opcji %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nie przyjmuje wartości</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 wymaga wartości: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 można użyć tylko z %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 wymaga liczby całkowitej od %2 do %3, a nie %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 wymaga liczby bajtów, np. 4096, 64K lub 5GiB, od %2 do %3, a nie %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 wymaga liczby sekund, 0 lub więcej, a nie %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>brak FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>tylko jeden FOLDER naraz</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 to text, markdown, csv lub json, a nie %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 wymaga nazwy pliku</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 nie przyjmuje argumentów</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 wymaga %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>plik pomiaru zawiera jeden pomiar, a nie %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>%1 jest potrzebne, gdy nazwa FILE nie kończy się na .tarnwickrun, .csv, .json, .md lub .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 wymaga podania RUN albo %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 można użyć tylko z %2 i %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 przyjmuje list, show, export i delete, a nie %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>brak polecenia; zobacz %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>nie ma polecenia %1; zobacz %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>brak FOLDER do zmierzenia</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>brak FOLDER do sprawdzenia</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>tylko jeden FOLDER naraz, bez %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>nazwa FOLDER jest pusta</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: nie ma testu %2, tylko %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 to light lub dark, a nie %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>brak FILE do pokazania</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Gotowe do pomiaru</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Wybierz wolumin, aby rozpocząć</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Dostosuj testy i ustawienia po lewej stronie, a potem naciśnij „Rozpocznij pomiar”.</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Wybierz zamontowany wolumin lub katalog na pasku narzędzi.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Ostrzeżenie</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Całe wolne miejsce</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Po %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Próbki z całego wybranego miejsca są zapisywane, odczytywane i usuwane. Trwa to kilka sekund i wykrywa większość fałszywych pojemności, ale niczego nie dowodzi, jeśli żadnej nie znajdzie.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>Dane testowe (%1) są zapisywane, odczytywane, porównywane i usuwane. Pliki użytkownika pozostają nietknięte.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Całe wolne miejsce jest zapisywane, odczytywane, porównywane i zwalniane. Pliki użytkownika pozostają nietknięte.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Całe wolne miejsce, około %1, jest zapisywane, odczytywane, porównywane i zwalniane. Na dużym woluminie trwa to wiele godzin; w tym czasie wolumin jest pełny dla innych programów. Pliki użytkownika pozostają nietknięte.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1% sprawdzania</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>w jednej części</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>w %1 części</numerusform>
            <numerusform>w %1 częściach</numerusform>
            <numerusform>w %1 częściach</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>Od %1 do %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
        <translation>Sprawdzono</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Skopiowano tekst</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Nie udało się skopiować tekstu.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Nie udało się zapisać pliku: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Zapisano jako „%1”</translation>
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
        <translation>Napęd %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>gotowe</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>w toku</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>oczekuje</translation>
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
        <translation>Pozostało kilka sekund</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>Do końca testu pozostało kilka sekund</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Pozostało około %n s</numerusform>
            <numerusform>Pozostało około %n s</numerusform>
            <numerusform>Pozostało około %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>Do końca testu pozostało około %n s</numerusform>
            <numerusform>Do końca testu pozostało około %n s</numerusform>
            <numerusform>Do końca testu pozostało około %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Pozostało około %n min</numerusform>
            <numerusform>Pozostało około %n min</numerusform>
            <numerusform>Pozostało około %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>Do końca testu pozostało około %n min</numerusform>
            <numerusform>Do końca testu pozostało około %n min</numerusform>
            <numerusform>Do końca testu pozostało około %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Pozostało około %n h</numerusform>
            <numerusform>Pozostało około %n h</numerusform>
            <numerusform>Pozostało około %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>Do końca testu pozostało około %n h</numerusform>
            <numerusform>Do końca testu pozostało około %n h</numerusform>
            <numerusform>Do końca testu pozostało około %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 z %2 operacji</numerusform>
            <numerusform>%1 z %2 operacji</numerusform>
            <numerusform>%1 z %2 operacji</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Przygotowywanie…</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Cały pomiar</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
        <translation>Wolumin</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Pasek menu</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Wybierz pomiary do porównania</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Poprzednie pomiary</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Porównaj</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Wyczyść</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Porównaj (%n)</numerusform>
            <numerusform>Porównaj (%n)</numerusform>
            <numerusform>Porównaj (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>bieżący pomiar</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Usunąć wszystkie zapisane pomiary?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Usuń wszystkie</translation>
    </message>
</context>
<context>
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>Najwyżej %1 zapisanych danych trafiło na dysk podczas testu.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>%1 zapisanych danych trafiło na dysk podczas testu.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>Najwyżej %1 odczytanych danych pochodziło z dysku.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>%1 odczytanych danych pochodziło z dysku.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Nie wszystkie zapisane dane udało się przenieść z buforów na dysk: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>Nie udało się przenieść pliku testowego z buforów na dysk: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 przez pierwsze %2, potem %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>Napęd osiągnął %1 po %2 (granica: %3) i od tej chwili szybkość była o %4 niższa.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Jedna przerwa powyżej 1 s: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 przerwa powyżej 1 s, najdłuższa %2.</numerusform>
            <numerusform>%1 przerwy powyżej 1 s, najdłuższa %2.</numerusform>
            <numerusform>%1 przerw powyżej 1 s, najdłuższa %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>W czasie testu inne programy przesłały %1 na tym samym dysku.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>Łącze %1 napędu działa z szybkością %2, a napęd mógłby osiągnąć %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>Partycja zaczyna się %1 za początkiem bloku fizycznego o rozmiarze %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>Wolne było tylko %1 woluminu.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Dane testu (%1) mogą się zmieścić w pamięci podręcznej (%2).</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>Komputer działał na baterii.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>Procesor był ustawiony na oszczędzanie energii.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>Komputer działał na baterii, a procesor był ustawiony na oszczędzanie energii.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>System plików zapisuje zmiany w nowych miejscach i liczy sumy kontrolne danych.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>System plików zapisuje zmiany w nowych miejscach.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Włącz „Pomiń pamięć podręczną”. Jeśli jest już włączone, wybierz rozmiar większy niż pamięć komputera.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Zanim powierzysz napędowi dane, sprawdź jego stan S.M.A.R.T. i dziennik systemu.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Dane przeszły przez pamięć podręczną, choć system miał ją pominąć.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Wybierz rozmiar większy niż pamięć komputera albo zbadaj dysk leżący poniżej przez inny system plików.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Gdy naraz przesyłane jest więcej, należy oczekiwać niższej szybkości.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Zapewnij napędowi lepszy przepływ powietrza lub radiator i powtórz pomiar, gdy ostygnie.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Powtórz pomiar. Jeśli przerwy powrócą, sprawdź stan S.M.A.R.T. napędu i jego kabel.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Powtórz pomiar, gdy nic innego nie używa dysku.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Spróbuj innego portu, gniazda lub kabla.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Utwórz partycję od nowa, z początkiem w wielokrotności 1 MiB. To usunie jej zawartość.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Zwolnij trochę miejsca: wiele napędów i systemów plików zwalnia po zapełnieniu.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Wybierz większy rozmiar i włącz „Pomiń pamięć podręczną”.</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Powtórz pomiar na zasilaniu sieciowym, z wyłączonym oszczędzaniem energii.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>Dysku tego woluminu nie widać, więc nic nie pokazuje, co sam zrobił.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Ten wolumin trzyma pliki w pamięci; nie zmierzono żadnego dysku.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Wybierz katalog na dysku.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Ten wolumin jest plikiem na innym woluminie.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Aby zmierzyć tamten wolumin, wybierz katalog na nim.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>To dysk maszyny wirtualnej, której host może go buforować.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>System plików kompresuje dane. Danych testu nie da się skompresować, więc inne pliki mogą być szybsze.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>System plików zapisuje dane dwukrotnie, najpierw w dzienniku.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Dostęp do tego katalogu odbywał się przez portal środowiska graficznego, czyli program, który wpływa na wyniki.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Zezwól izolowanemu środowisku na używanie samego katalogu i wybierz go ponownie.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Błędny</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Ostrożnie</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>Informacja</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Analizator szybkości dysków i woluminów</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Zeskanuj i zmierz swój</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Rodzaj zgłoszenia</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Propozycja funkcji</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Podsumowanie — opis w jednym wierszu</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>Co program %1 powinien robić?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>Co się stało? Kroki pozwalające odtworzyć problem i oczekiwany wynik.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>E-mail — opcjonalnie, jeśli chcesz otrzymać odpowiedź</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Dołączone zostaną: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — Porównanie</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Dziękujemy</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Zgłoś problem</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Zgłoszenie zostało przyjęte. Dziękujemy za pomoc w ulepszaniu programu %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Zgłoś w sieci:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Rozpocznij pomiar</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Przepustowość w czasie</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Zacienione: ostatnia trzecia część każdego testu, jej mediana to szybkość ciągła. Trójkąty: szybkość szczytowa i najniższa.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Pomiar</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Napęd</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (błędny)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Uwagi</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n pomiar</numerusform>
            <numerusform>Ondel Tarnwick — %n pomiary</numerusform>
            <numerusform>Ondel Tarnwick — %n pomiarów</numerusform>
        </translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Skopiowano tekst</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Skopiowano tabelę</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Nie udało się skopiować tekstu.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Listy pomiarów</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Pomiary programu Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Tabele CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Nie udało się zapisać pliku: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Zapisano jako „%1”</translation>
    </message>
</context>
<context>
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Wynik spoza dysku: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Wyniki spoza dysku: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Losowy odczyt %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Losowy zapis %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operacje na plikach</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Odczyt/zapis</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
        <translation>Dostęp losowy</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Napęd</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Pojemność</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>Wolne</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Pamięć podręczna</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>Pominięta</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>Użyta</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Skopiowano wyniki</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Nie udało się skopiować wyników.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, wynik spoza dysku</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Zapis sekwencyjny</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Odczyt sekwencyjny</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Zmień nazwę raportu…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Udostępnij obraz raportu…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Skopiuj wyniki</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Skopiuj jako tekst</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Skopiuj jako tabelę Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Zapisz plik pomiaru…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Eksportuj CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Porównaj z ostatnim pomiarem tego woluminu</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Usuń pomiar</translation>
    </message>
</context>
<context>
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Trwa sprawdzanie pojemności</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Trwa pomiar</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>zapis %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>odczyt %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Pomiar się nie powiódł</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Zakończono pomiar</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Sprawdzanie pojemności się nie powiodło</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Zakończono sprawdzanie pojemności</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>O tych wynikach</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>Co oznaczają te uwagi</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Odczyt losowy</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Zapis losowy</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Oper. na plikach</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>szczyt %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>najniższa %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, szczyt</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, najniższa</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, opóźnienie</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>O tych wynikach</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>Serwer %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Serwer sieciowy</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Napęd zewnętrzny</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Wolumin sieciowy</translation>
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
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Zapisz te wartości do pliku tekstowego</translation>
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
        <translation>%1  (uwaga)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Napęd</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfejs</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Raport S.M.A.R.T. programu Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Blok zapisu</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Blok odczytu</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Blok losowy</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>Pomiń pamięć podręczną</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  optymalny</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <extracomment>Button: opens a menu</extracomment>
        <translation>Udostępnij</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Skopiuj obraz</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Zapisz jako…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Pokaż w katalogu</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Wyślij e-mailem…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Skopiuj jako tekst</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Skopiuj jako tabelę Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Zapisz plik pomiaru…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Zapisz pomiary…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Eksportuj CSV…</translation>
    </message>
</context>
<context>
    <name>SharedImageText</name>
    <message>
        <source>Image copied</source>
        <translation>Skopiowano obraz</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Nie udało się skopiować obrazu.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Nie udało się zapisać obrazu: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Zapisano jako „%1”</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Nie udało się otworzyć katalogu.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Nie udało się otworzyć żadnego programu pocztowego.</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Testy i ustawienia</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Sprawdzanie…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Pomiar…</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>Zakończono</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 jest bezpłatny.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>Jeśli program się przydaje, Twoje wsparcie pomaga go rozwijać.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Wesprzyj na Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nie teraz</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Ukryj na tydzień</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>%1 ma już moje wsparcie</translation>
    </message>
</context>
<context>
    <name>TargetFactsText</name>
    <message>
        <source>Sparse files</source>
        <translation>Pliki rzadkie</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Klonowanie</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Migawki</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Dowiązania twarde</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Dowiązania symboliczne</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Wielkość liter: ?</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>Rozróżnia wielkość liter</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Ignoruje wielkość liter</translation>
    </message>
    <message>
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 zewnętrzny</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 wewnętrzny</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 wymienny</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 sieciowy</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Nie udało się otworzyć katalogu.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Optymalny rozmiar we/wy</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Rozmiar bloku</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Maks. nazwa pliku</translation>
    </message>
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 znak</numerusform>
            <numerusform>%1 znaki</numerusform>
            <numerusform>%1 znaków</numerusform>
        </translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Maks. ścieżka</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Pojemność</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>Wolne</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Nieznane: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Brak wartości S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Wybierz katalog na woluminie do zbadania (zostanie tam utworzony, a potem usunięty tymczasowy katalog roboczy).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Wybierz</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>otwarte już okno nie odpowiada; wykona to, o co poproszono, gdy tylko będzie mogło.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>otwarte już okno (proces %1) nie odpowiada; wykona to, o co poproszono, gdy tylko będzie mogło.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Zapis</translation>
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
        <translation>O programie Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Wybierz katalog…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Otwórz plik pomiaru…</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
        <translation>P&amp;omiar</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Rozpocznij pomiar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Sprawdź pojemność…</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Menu entry: begins to choose runs</extracomment>
        <translation>Porównaj</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Cofnij usunięcie</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Pomoc programu Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Zgłoś problem…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Wesprzyj Tarnwick…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation>Jak w środowisku pulpitu</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatycznie sprawdzaj aktualizacje</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Mniej więcej raz dziennie szuka nowej wersji i pyta przed jej zainstalowaniem. Po wyłączeniu Tarnwick sprawdza aktualizacje tylko po wybraniu „Sprawdź aktualizacje”.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Sprawdź teraz</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Ta kompilacja nie aktualizuje się sama. Kompilacje rozwojowe są tworzone bez kanału aktualizacji, więc nie mogą zastąpić się wydaniem.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Język okna</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>Okno zmieni język przy następnym uruchomieniu programu Tarnwick.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Udostępniane obrazy po angielsku</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Po wyłączeniu ich teksty są w języku okna.</translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>Wesprzyj Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick jest bezpłatny i tworzy go jeden programista. Wsparcie pokrywa koszty serwera i czas potrzebny na rozwój programu.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Wesprzyj na Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Tarnwick ma już moje wsparcie</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Ukrywa prośbę o wsparcie na dole panelu bocznego.</translation>
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
        <translation>Przepustowość w czasie</translation>
    </message>
</context>
<context>
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: od %2 do %3 %6 w ciągu %4, ostatnio %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Nie ma jeszcze danych.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Zminimalizuj</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Zmaksymalizuj</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>Usunięto %n pomiar</numerusform>
            <numerusform>Usunięto %n pomiary</numerusform>
            <numerusform>Usunięto %n pomiarów</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Usunięto pomiar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Informacje o wydaniu</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatycznie sprawdzać aktualizacje?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Program jest aktualny</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Dostępna jest nowa wersja programu %1</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Pobieranie aktualizacji…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Sprawdzanie podpisu aktualizacji…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>Aktualizacja jest gotowa do zainstalowania</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Nie udało się sprawdzić aktualizacji</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Nie udało się pobrać aktualizacji</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 może mniej więcej raz dziennie szukać nowej wersji. Nie wysyła niczego o użytkowniku ani o jego dyskach i pyta, zanim cokolwiek pobierze.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 to najnowsza wersja.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>Zainstalowana wersja: %1. Rozmiar pobieranej wersji %2: %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>Pakiet %1 %2 jest podpisany przez twórcę. Dalej poprowadzi systemowy instalator oprogramowania.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Sprawdzaj automatycznie</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Nie sprawdzaj</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Nie udało się połączyć z serwerem aktualizacji. Sprawdź połączenie z Internetem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Nie udało się odczytać odpowiedzi serwera aktualizacji.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>Połączenie z serwerem aktualizacji tej kompilacji nie jest bezpieczne, dlatego o nic go nie zapytano.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Jest nowa wersja programu %1, ale serwer aktualizacji nie podaje, co jest potrzebne do jej bezpiecznego pobrania.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Nie udało się pobrać aktualizacji. Sprawdź połączenie z Internetem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>Pobrany plik nie ma rozmiaru, jaki powinna mieć aktualizacja, więc został usunięty.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>Pobrany plik nie jest podpisany przez twórcę programu %1, więc został usunięty.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>W katalogu tymczasowym nie ma dość miejsca na aktualizację.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Nie udało się zapisać aktualizacji w katalogu tymczasowym.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>Żaden program w tym systemie nie otwiera pakietu aktualizacji.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Wybierz wolumin</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Nie wybrano woluminu</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Zamontowane woluminy</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Wybierz katalog…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Pokaż w katalogu</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Sprawdź pojemność…</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Wewnętrzny</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Zewnętrzny</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Wymienny</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Główny</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Katalog udostępniony</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Zapełnij dysk</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Ciągła: mediana szybkości z ostatniej trzeciej części testu, czyli poziom, na którym ustala się długie kopiowanie; szczytowa i najniższa to najszybsza i najwolniejsza dziesiąta część sekundy testu.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Przesyła dane z pominięciem pamięci systemu, aby mierzyć dysk, a nie pamięć podręczną.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Zapisuje jeden duży plik od początku do końca i opróżnia bufory na dysk, tak jak długie kopiowanie na ten wolumin.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Odczytuje jeden duży plik od początku do końca, tak jak długie kopiowanie z tego woluminu.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Odczytuje bloki w rozproszonych miejscach pliku, po jednym naraz, jak większość programów: przy kilku naraz mierzona byłaby kolejka napędu, a nie czas oczekiwania; IOPS to liczba takich operacji na sekundę.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Zapisuje bloki w rozproszonych miejscach pliku, po jednym naraz, jak większość programów: przy kilku naraz mierzona byłaby kolejka napędu, a nie czas oczekiwania; IOPS to liczba takich operacji na sekundę.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Tworzy puste pliki, odczytuje ich atrybuty, zmienia im nazwy i usuwa je; wynik to liczba plików utworzonych w ciągu sekundy.</translation>
    </message>
</context>
</TS>
