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
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
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
        <source>The server rejected the report (%1).</source>
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
        <translation>Miejsce do zbadania</translation>
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
        <source>Close</source>
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
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczyt</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
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
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>Próbki zawierają to, co zapisano, ale leżą blisko siebie.</translation>
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
        <source>Space to check</source>
        <translation>Miejsce do zbadania</translation>
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
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>Czego nie wykaże żadne sprawdzanie: czy miejsce zajęte przez pliki jest sprawne, ile napęd trzyma w rezerwie i czy naprawiony blok wytrzyma.</translation>
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
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>Sprawdzanie zatrzymano: nie wiadomo, w jakim stanie jest to, czego nie odczytano.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Szybkie sprawdzanie zapisuje tylko w kilku miejscach. W kilka sekund wykrywa większość fałszywych pojemności; jeśli niczego nie znajdzie, niczego to nie dowodzi.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Sprawdzono mniej, niż planowano: miejsce mogły zająć inne programy.</translation>
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
        <source>Capacity of %1</source>
        <translation>Pojemność %1</translation>
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
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczyt</translation>
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
        <translation>Zapis w czasie</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Odczyt w czasie</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Porównanie pomiarów</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>Porównane pomiary: %1</translation>
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
    <message>
        <source>Comparing %1 runs</source>
        <translation>Porównywane pomiary: %1</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Udostępnij obraz porównania</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Punkt odniesienia</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
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
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Zapełnić dysk?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>Test zapisuje dane, aż zostanie %1 wolnego miejsca, a potem wszystko usuwa. Na dużym napędzie trwa to długo, a do końca testu zabraknie na nim miejsca dla wszystkiego innego.</translation>
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
        <translation>Awaria</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>W normie</translation>
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
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczyt</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Usuń „%1”</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Usuń ten pomiar</translation>
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
        <translation>Ostrzeżenie</translation>
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
        <translation>Napęd %1 °C</translation>
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
        <source>the volume</source>
        <translation>woluminu</translation>
    </message>
    <message>
        <source>Volume</source>
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
        <translation>Porównaj</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Porównaj (%1)</translation>
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
    <name>QFileDialog</name>
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
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Pomiary programu Tarnwick</translation>
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
        <translation>Dołączone zostaną: %1 %2 · %3 · %4.</translation>
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
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Zacienione: ostatnia trzecia część każdego testu, jej mediana to szybkość ciągła. Trójkąty: szybkość szczytowa i najniższa.</translation>
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
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Trwa sprawdzanie pojemności</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Trwa pomiar</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>Pomiar się nie powiódł</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>zapis %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>odczyt %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Zakończono pomiar</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Zakończono sprawdzanie pojemności</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>Sprawdzanie pojemności się nie powiodło</translation>
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
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
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
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Write</source>
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
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>&amp;Run</source>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation>Całe wolne miejsce</translation>
    </message>
    <message>
        <source>No</source>
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
        <translation>Od %1 do %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
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
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>gotowe</translation>
    </message>
    <message>
        <source>running</source>
        <translation>w toku</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>oczekuje</translation>
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
        <translation>kilka sekund</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>około %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>około %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>około %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Pozostało %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>Do końca testu pozostało %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 operacji</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Przygotowywanie…</translation>
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
        <translation>pomiary (%1)</translation>
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
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>odniesienie</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Wynik spoza dysku: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Wyniki spoza dysku: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Losowy odczyt %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Losowy zapis %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operacje na plikach</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Zapis/odczyt</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Odczyt</translation>
    </message>
    <message>
        <source>Random</source>
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
        <translation>Wolne</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Pamięć podręczna</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>Pominięta</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>Używana</translation>
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
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
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
    <name>TarnwickKit::views::TargetFacts</name>
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
    <message>
        <source>%1 chars</source>
        <translation>%1 zn.</translation>
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
        <translation>Wolne</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Nieznane: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Brak wartości S.M.A.R.T.: %1</translation>
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
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Zminimalizuj</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Zmaksymalizuj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>Usunięte pomiary: %1</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Usunięto pomiar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
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
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Informacje o wydaniu</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
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
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Ciągła: mediana szybkości z ostatniej trzeciej części testu, na której ustala się długie kopiowanie; szczytowa i najniższa to jego najszybsza i najwolniejsza dziesiąta część sekundy.</translation>
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
        <translation>Tworzy, wyszukuje, przemianowuje i usuwa puste pliki; wynik to liczba plików utworzonych w ciągu sekundy.</translation>
    </message>
</context>
</TS>
