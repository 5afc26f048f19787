<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>Apoiar o %1</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>Agradecimentos</translation>
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
        <translation>Mais</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>Indisponível no momento</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>Indisponível no momento</translation>
    </message>
</context>
<context>
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>Espaço insuficiente: são necessários %1, só há %2 livres.</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>Erro de E/S: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>Não foi possível gravar ali. O volume pode ser somente leitura ou a pasta pode não permitir a gravação.</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>O arquivo de teste é pequeno demais para o tamanho do bloco aleatório.</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>Gravação sequencial</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>Leitura sequencial</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Leitura aleatória</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Gravação aleatória</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operações com arquivos</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>arquivos/s</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>pior %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>A pasta foi removida ou seu volume foi desconectado durante a medição.</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>O volume foi desconectado ou seu servidor não está mais disponível.</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>A unidade relatou um erro ou foi desconectada durante a medição.</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>O volume só pode ser lido: os sistemas mudam para esse modo quando encontram um erro nele.</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>O volume ficou cheio durante a medição ou sua cota nele se esgotou.</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>O sistema de arquivos ou um limite desta sessão não permite arquivos deste tamanho.</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>As permissões da pasta mudaram durante a medição ou o sistema proíbe isso ali.</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>Não há memória suficiente para blocos deste tamanho.</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>Há arquivos demais abertos no momento; feche alguns programas e tente de novo.</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
        <translation>pico %1
mín. %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>pico %1 · mín. %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>Não foi possível acessar o servidor. Verifique sua conexão e tente de novo.</translation>
    </message>
    <message>
        <source>The answer&apos;s head is too long</source>
        <translation>O cabeçalho da resposta é longo demais</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>Nenhum proxy pode ser usado</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>Não é possível carregar libcurl.so.4</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>Não é possível enviar o relato a partir deste ambiente isolado, que não tem rede.</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
        <translation>O servidor rejeitou o relato (%1).</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>Recursos do volume</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>O volume é tão grande quanto diz e conserva o que recebe?</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Espaço a verificar</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>Ler outra vez</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>Rápida: só amostras</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>Iniciar verificação</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>Salvar relatório…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>Copiar o relatório como texto</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>Nova verificação</translation>
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
        <translation>Parar</translation>
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
        <translation>Capacidade de %1</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>Capacidade do volume</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>Voltar às medições</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>Mapa do espaço verificado</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>Velocidade ao longo do espaço, até %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Leitura</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>O que nenhuma verificação revela: se o espaço ocupado pelos seus arquivos está íntegro, o que a unidade mantém de reserva e se um bloco reparado vai durar.</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>Este sistema de arquivos não reserva espaço sem gravá-lo, por isso não foi possível espalhar as amostras. O resultado não diz nada sobre o tamanho do volume: faça uma verificação que não seja a rápida.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>Uma verificação rápida grava só em alguns lugares: o que há entre eles não foi examinado.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Uma verificação rápida grava só em alguns lugares. Ela descobre a maioria das capacidades falsas em segundos; não encontrar nada não prova nada.</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>Foi verificado menos que o planejado: o volume ficou cheio cedo demais. Ele pode ter perdido dados do próprio sistema de arquivos.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Foi verificado menos que o planejado: outros programas podem ter ocupado o espaço.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>Este volume mantém os arquivos na memória: nenhum disco foi verificado.</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>Só %1% do que foi lido veio do disco. Verifique mais do que cabe na memória do computador.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>O disco por trás deste volume não pode ser visto, então o que voltou pode ter vindo de um cache.</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>O que for gravado além do tamanho real se perde ou destrói o que está em outro lugar do volume. Copie dele o que precisar e não confie nele.</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>A verificação foi interrompida: não se sabe como está o que ela não leu de volta.</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>Este sistema de arquivos não devolve nada que não corresponda às suas somas de verificação: nele não é possível ler dados alterados.</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>Capacidade de %1</translation>
    </message>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>Este volume só conserva os primeiros %1 do que é gravado nele.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>Este volume declara %1, mas só conserva os primeiros %2.</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>Este volume declara %1, mas só conserva aproximadamente os primeiros %2.</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>Um bloco na posição %1 voltou alterado.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%1 bloco na posição %2 voltou alterado.</numerusform>
            <numerusform>%1 blocos na posição %2 voltaram alterados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 bloco voltou alterado, o primeiro na posição %2.</numerusform>
            <numerusform>%1 blocos voltaram alterados, o primeiro na posição %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%1 de %2 voltaram alterados, o primeiro bloco na posição %3.</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>Um bloco na posição %1 estava correto no início e mudou depois.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%1 bloco na posição %2 estava correto no início e mudou depois.</numerusform>
            <numerusform>%1 blocos na posição %2 estavam corretos no início e mudaram depois.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 bloco estava correto no início e mudou depois, o primeiro na posição %2.</numerusform>
            <numerusform>%1 blocos estavam corretos no início e mudaram depois, o primeiro na posição %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%1 de %2 estavam corretos no início e mudaram depois, o primeiro bloco na posição %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>Não foi possível ler um bloco na posição %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %1 bloco na posição %2.</numerusform>
            <numerusform>Não foi possível ler %1 blocos na posição %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>Não foi possível ler %1 bloco, o primeiro na posição %2.</numerusform>
            <numerusform>Não foi possível ler %1 blocos, o primeiro na posição %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>Não foi possível ler %1 de %2, o primeiro bloco na posição %3.</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>Não foi possível gravar um bloco na posição %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>Não foi possível gravar %1 bloco na posição %2.</numerusform>
            <numerusform>Não foi possível gravar %1 blocos na posição %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>Não foi possível gravar %1 bloco, o primeiro na posição %2.</numerusform>
            <numerusform>Não foi possível gravar %1 blocos, o primeiro na posição %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>Além dos %2 gravados, não foi possível gravar %1, o primeiro bloco na posição %3.</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>Só foi possível gravar ou ler um bloco na posição %1 na segunda tentativa.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>Só foi possível gravar ou ler %1 bloco na posição %2 na segunda tentativa.</numerusform>
            <numerusform>Só foi possível gravar ou ler %1 blocos na posição %2 na segunda tentativa.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>Só foi possível gravar ou ler %1 bloco na segunda tentativa, o primeiro na posição %2.</numerusform>
            <numerusform>Só foi possível gravar ou ler %1 blocos na segunda tentativa, o primeiro na posição %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>Só foi possível gravar ou ler %1 de %2 na segunda tentativa, o primeiro bloco na posição %3.</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>Um bloco na posição %1 não voltou como foi gravado.</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%1 bloco na posição %2 não voltou como foi gravado.</numerusform>
            <numerusform>%1 blocos na posição %2 não voltaram como foram gravados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 bloco não voltou como foi gravado, o primeiro na posição %2.</numerusform>
            <numerusform>%1 blocos não voltaram como foram gravados, o primeiro na posição %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%1 de %2 não voltaram como foram gravados, o primeiro bloco na posição %3.</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>Antes de ser interrompida, a verificação encontrou blocos que não voltaram como foram gravados, o primeiro na posição %1.</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>O volume aceitou a gravação de %1 de %2 e recusou tudo o que veio depois.</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>A verificação foi interrompida antes que algo fosse lido de volta.</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>A verificação foi interrompida quando %1 de %2 tinham voltado como foram gravados.</translation>
    </message>
    <message>
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>Este sistema de arquivos não consegue espalhar amostras: só %1 em um único lugar foram verificados e contêm o que foi gravado.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Amostras espalhadas por %1 contêm o que foi gravado, o que não prova nada.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Amostras espalhadas por %1 de espaço livre contêm o que foi gravado, o que não prova nada.</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>Sua cota no volume se esgotou após %1 de %2; essa parte contém o que foi gravado.</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>O volume ficou cheio após %1 de %2; essa parte contém o que foi gravado.</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>Tudo (%1) voltou como foi gravado, mas principalmente da memória: isso diz pouco sobre o disco.</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>Tudo (%1) contém o que foi gravado.</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>Todo o espaço livre (%1) contém o que foi gravado.</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>Tamanho declarado</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>cerca de %1</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>Espaço a verificar</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>%1 de espaço livre</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1, uma a cada %2</translation>
    </message>
    <message>
        <source>In one place</source>
        <translation>Em um único lugar</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>Estava correto na primeira leitura.</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>Na posição %1, %2: um bit foi invertido.</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>Na posição %1, %2: %3 bit foi invertido.</numerusform>
            <numerusform>Na posição %1, %2: %3 bits foram invertidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>motivo desconhecido</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>Na posição %1, %2: não foi possível ler (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>Na posição %1, %2: não foi possível gravar (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>Na posição %1, %2: só foi possível gravar ou ler na segunda tentativa (%3).</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>Na posição %1, %2: voltou o que foi gravado em outro lugar.</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>Na posição %1, %2: voltou, repetidas vezes, o bloco gravado na posição %3.</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>Na posição %1, %2: voltou o que foi gravado na posição %3.</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>Na posição %1, %2: voltaram zeros.</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>Na posição %1, %2: voltou algo que nunca foi gravado ali.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Gravado</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Lido de volta</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>Relido após %1</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Como gravado</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterado</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>Leitura impossível</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>Gravação impossível</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>Só na 2ª tentativa</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>Lido do disco</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>E em mais um lugar.</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>E em mais %1 lugar.</numerusform>
            <numerusform>E em mais %1 lugares.</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparando…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>Gravando amostras</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Gravando</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>Lendo de volta</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>Lendo outra vez</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Não gravado</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>Ilegível</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>Não gravável</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Leitura</translation>
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
        <translation>Uso: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
Abre o analisador de discos e volumes, escolhe a primeira pasta e mostra os arquivos de medição (*.tarnwickrun).
  --check-capacity  passa à verificação do volume dessa pasta
  --choose-folder   pede uma pasta
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 não é uma pasta nem um arquivo de medição que possa ser aberto.</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>Comparar com a última medição deste volume</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>Gravação ao longo do tempo</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>Leitura ao longo do tempo</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>referência</translation>
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
        <translation>Comparação de medições</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>%n medição comparada</numerusform>
            <numerusform>%n medições comparadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>Escaneie para experimentar</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Valor que não é do disco</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>Comparando %n medição</numerusform>
            <numerusform>Comparando %n medições</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Compartilhar uma imagem da comparação</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>Diferenças em relação a</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Leitura aleatória</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Gravação aleatória</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. arq.</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>op/s</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>%1 livres</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>Teste que enche o disco</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>Teste de %1</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>L/G %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>G %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>L %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>Aleat. %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>Sem cache</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>Com cache</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>Concluída</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>Anexar diagnóstico</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>Atividade recente desta sessão. Nomes de arquivos, servidores e contas são substituídos por códigos anônimos antes que qualquer coisa seja registrada.</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>Ver…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
    <message>
        <source>Working folder:</source>
        <translation>Pasta de trabalho:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>temporária, é criada ali e removida</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Medições do Tarnwick</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>“%1” está danificado ou não é uma medição do Tarnwick.</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>“%1” não é uma pasta nem um arquivo de medição que possa ser aberto.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>“%1” e mais %2 arquivo estão danificados ou não são medições do Tarnwick.</numerusform>
            <numerusform>“%1” e mais %2 arquivos estão danificados ou não são medições do Tarnwick.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>“%1” e mais %2 item não são pastas nem arquivos de medição que possam ser abertos.</numerusform>
            <numerusform>“%1” e mais %2 itens não são pastas nem arquivos de medição que possam ser abertos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>Ocultar testes e configurações</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>Mostrar testes e configurações</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>Renomear este relatório. O nome também aparece nas imagens que você compartilha.</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>Título do relatório</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>Compartilhar uma imagem do relatório</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Excluir medição</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Recolher</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>Valor que não é do disco</translation>
    </message>
</context>
<context>
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>Medição: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>valor que não é do disco</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Encher o disco?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>O teste grava até restarem %1 livres e depois remove tudo o que gravou. Em uma unidade grande isso demora, e até o fim do teste faltará espaço para tudo o mais que precisar dele.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>Encher disco</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>Mostrar na pasta: %1</translation>
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
        <translation>Verificações anteriores</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Falha iminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Aprovado</translation>
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
        <translation>Aviso crítico</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>Vida útil consumida</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>Reserva disponível</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>Limite da reserva</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>Tempo ligada</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>Ciclos de liga/desliga</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>Ciclos de carga</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>Desligamentos inseguros</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>Dados gravados</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>Dados lidos</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>Comandos de leitura</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>Comandos de gravação</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>Controladora ocupada</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>Setores realocados</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>Setores pendentes</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>Setores não corrigíveis</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>Erros não corrigíveis relatados</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>Novas tentativas de rotação</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>Erros de CRC da interface</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>Erros de mídia</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>Entradas no log de erros</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>Reserva abaixo do limite</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>Confiabilidade degradada</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>Memória sem backup</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 anos</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>%1 de %2 discos responderam</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>não há dispositivo por trás deste caminho</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>não há disco por trás de %1</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 não é um dispositivo de bloco</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 não informa se está em repouso, por isso não foi acessado</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 está em repouso e não foi acessado</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 não tem S.M.A.R.T. ou ele está desativado</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 não tem interface S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 não repassa comandos S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 não fornece seu log de saúde NVMe</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 só pode ser consultado por um administrador</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 está fora do alcance deste processo</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>o UDisks2 não responde</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>o UDisks2 não responde quanto a %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 não responde</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>o UDisks2 %1 não lê a saúde de unidades NVMe (a versão 2.10 lê)</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>o UDisks2 não tem valores de saúde de %1</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>o UDisks2 não tem um diagnóstico de saúde de %1</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>o UDisks2 não conhece nenhuma unidade por trás de %1</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>S.M.A.R.T. ATA de %1, que deu seu diagnóstico sem valores</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>S.M.A.R.T. ATA de %1</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>Log de saúde NVMe de %1</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>UDisks2 para %1, lido há %2 min</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>UDisks2 para %1</translation>
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
        <translation>%1, e %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 dia</numerusform>
            <numerusform>%1 dias</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>Falha iminente</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>Aprovado</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation>&amp;Histórico</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copiar como tabela Markdown</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Salvar medições…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exportar CSV…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>Leitura</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>Excluir “%1”</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Excluir esta medição</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>Parando, removendo os arquivos</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>Não foi possível expressar a verificação em JSON.</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>Diferencia maiúsculas</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>Preserva maiúsculas/minúsculas</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>Arquivos esparsos</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Links físicos</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>Links simbólicos</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>Atributos estendidos</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>Fluxos nomeados</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>Listas de controle de acesso</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Clonagem</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantâneos</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>Journal ativo</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>Lacrado</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponível</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Criptografado</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>Montado em</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Tamanho do bloco</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>Transferência ideal</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>Nome mais longo</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>Caminho mais longo</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>Máximo de links</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>Conectada por</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>(atenção)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>sem valores S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>não foi possível iniciar %1, que vem com a janela</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 não responde</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 é uma pasta</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 não é um arquivo comum</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 existe e não contém medições; --force o substituiria</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>Um valor desta medição ultrapassa o que um arquivo pode conter.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>não foi possível gravar %1: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>Não foi possível gravar o histórico.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>Não foi possível gravar o resultado</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 não é uma pasta</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 não está neste ambiente isolado, que tem apenas algumas pastas do computador</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 é do próprio ambiente isolado; a pasta do computador com esse nome está oculta para ele.</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>Arquivos de outra medição nesta pasta estão em uso e não foram removidos.</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: a descarga na mídia falhou (%2); nem tudo o que foi gravado pode estar lá.</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>Preparação: a descarga na mídia falhou (%1); nem tudo o que foi gravado pode estar lá.</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>Não foi possível gravar o arquivo de medição na sua pasta temporária.</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>Não foi possível adicionar a medição ao histórico.</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 é maior do que um arquivo de medição pode ser (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>não foi possível ler %1</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada padrão</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>a entrada padrão é maior do que um arquivo de medição pode ser (%1)</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>a entrada padrão não é um arquivo de medição: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 não é um arquivo de medição: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>Não foi possível desenhar a imagem: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>Não foi possível desenhar a imagem ou gravá-la na sua pasta temporária.</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>Desenha nas cores escuras</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>Um arquivo de medição é o que &quot;run --handoff&quot; grava, para uma medição. A imagem é um arquivo PNG de 1616 pixels de
largura, com margem transparente; seu caminho é exibido. Não requer tela. Uma imagem de mesmo título substitui a
anterior; ela permanece até sua sessão terminar ou até o sistema esvaziar a pasta temporária.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>Status de saída: 0 concluído, 1 falha ao ler um arquivo ou ao criar a imagem, 2 uso incorreto.</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>Desenha uma imagem de uma medição ou da comparação de várias, para compartilhar</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>Quanto gravar e ler de volta (padrão: todo o espaço livre)</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>Quanto fica livre em qualquer caso (padrão: 64MiB)</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>Amostras por todo o intervalo, em poucos segundos: descobre uma
capacidade falsa e não prova nada se não encontrar nenhuma</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>Lê tudo mais uma vez, S segundos depois</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>Exibe um objeto JSON: o veredito, a frase e tudo o que foi encontrado</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>Grava arquivos diferentes em cada bloco em uma pasta oculta dentro de FOLDER, lê-os de volta sem passar pelo cache
do sistema, compara tudo e os remove, também após Ctrl+C. Nenhum arquivo seu é tocado; mas em um dispositivo com
capacidade falsa, cada gravação além do tamanho real pode destruir o que está lá, como em qualquer uso. --quick grava
só amostras. Arquivos de uma verificação encerrada à força são removidos pela próxima medição ou verificação em FOLDER.</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES são só dígitos, ou dígitos com K, M, G, T (KiB, MiB, GiB, TiB: base 1024).</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>Status de saída: 0 nada de errado encontrado, 1 falha, 2 uso incorreto, 3 defeitos encontrados, 130
interrompido por um sinal; o que foi encontrado até então é exibido.</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>Verifica se um volume é tão grande quanto diz e conserva o que recebe</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>Como text (padrão), markdown, csv ou json</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>Permite que --output substitua um arquivo de qualquer conteúdo</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>Exibe as informações como um objeto JSON</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>Exibe a lista como um array JSON</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>Nada é gravado em lugar algum. O que o sistema não informa aparece como &quot;--&quot; ou &quot;desconhecido&quot; e não consta do
objeto JSON.</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>Cada sistema de arquivos é listado uma vez, em seu ponto de montagem mais curto. O que o sistema, seus pacotes
e seus contêineres montam para si é omitido. Um servidor que não responde a tempo aparece sem capacidade.</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>A unidade só é observada: se está em repouso, não é acordada, e nada é ligado nela. A origem dos dados de saúde, ou por
que não há nenhum, é informada por &quot;facts&quot;.</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>Mostra onde está FOLDER: volume, sistema de arquivos, unidade e sua saúde</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>Lista os volumes montados</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>Exibe a saúde da unidade que contém FOLDER</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>Mostra este texto</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>Ondel Tarnwick em um terminal: a velocidade de um disco, medida nele mesmo, sem deixar nada para trás.</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>Mostra este texto ou, após um comando, as opções desse comando</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostra a versão</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>O arquivo que &quot;export&quot; grava</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>Permite que &quot;delete&quot; exclua todas as medições</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION é uma de</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>uma linha por medição, a mais nova primeiro, que começa com seu nome (padrão)</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>exibe medições como &quot;show&quot; faz, no formato de --format</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>grava medições no FILE de --output, no formato de --format ou do nome de FILE: .csv, .json, .md,
.txt, ou .tarnwickrun para uma medição</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>exclui medições, sem perguntar e de forma definitiva</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>Um RUN é indicado como consta da lista, ou por quatro ou mais caracteres iniciais de seu id. Sem nenhum, valem todas
as medições; &quot;delete&quot; então precisa de --all. Uma janela aberta acompanha assim que você volta a ela. --output só
substitui um arquivo existente se ele estiver vazio ou contiver medições; com --force, também qualquer outro.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>Status de saída: 0 concluído, 1 a medição não existe ou houve falha, 2 uso incorreto.</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>Lista, mostra, exporta ou exclui as medições que a janela guarda</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES são só dígitos, ou dígitos com K, M, G, T (KiB, MiB, GiB, TiB: base 1024). Blocos são arredondados para
cima, até páginas inteiras de 4096. Os padrões são os da janela, para que os valores possam ser comparados, exceto os
blocos dos testes sequenciais: a janela usa a &quot;Transferência ideal&quot; que &quot;facts&quot; mostra.</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>Tudo é gravado em uma pasta oculta dentro de FOLDER e removido no fim, também após Ctrl+C. O que uma medição encerrada
à força deixou em FOLDER é removido antes do início; arquivos ainda em uso ficam, após um segundo de espera.</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>Os arquivos de --handoff e --card ficam até sua sessão terminar ou até o sistema esvaziar a pasta temporária.
--output só substitui um arquivo existente se ele estiver vazio ou contiver medições (um arquivo de medição ou o
que &quot;show --format&quot; e &quot;history export&quot; gravam como json ou csv); com --force, também qualquer outro. Uma janela
aberta mostra uma medição adicionada por --keep assim que você volta a ela. Quando não é possível gravar algo, os
valores são exibidos mesmo assim e a medição conta como falha.</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>Status de saída: 0 concluído, 1 falha, 2 uso incorreto, 130 interrompido por um sinal.</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>Mede o sistema de arquivos que contém FOLDER</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>Testes a executar, sempre nesta ordem: sequentialWrite,
sequentialRead, randomRead, randomWrite, fileOps (padrão: todos)</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>Tamanho do arquivo de dados, ou encher o disco (padrão: 5GiB)</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>O que --size fill deixa livre (padrão: 1GiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>Bytes por chamada, gravação sequencial (padrão: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>Bytes por chamada, leitura sequencial (padrão: 1MiB)</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>Bytes por operação aleatória (padrão: 4KiB)</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>Operações em cada teste aleatório (padrão: 10000)</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>Arquivos no teste de operações com arquivos (padrão: 1000)</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>Deixa o sistema manter o arquivo de dados em cache, como os programas comuns</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>Mínimo de segundos entre duas amostras (padrão: 0.02)</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>Exibe um objeto JSON: o plano, cada valor, cada amostra, data,
pasta, volume, sistema de arquivos, unidade, kernel, e em &quot;evidence&quot;
e &quot;remarks&quot; o que foi observado e o que isso significa</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>Grava ali um arquivo de medição, para a janela, &quot;show&quot; e outros</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>Adiciona a medição ao histórico da janela</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>Grava um arquivo de medição para a janela e para &quot;show&quot; e exibe seu
caminho na última linha; com --json: como &quot;handoffFile&quot; no objeto</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>Desenha uma imagem da medição para compartilhar, em cores claras ou
escuras, e exibe seu caminho na última linha; com --json: como &quot;cardFile&quot;</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>Um arquivo de medição é o que &quot;run --handoff&quot; e &quot;run --output&quot; gravam, para uma medição. O histórico da janela
(history.json) e a saída de &quot;show --format json&quot; contêm várias. &quot;-&quot; é a entrada padrão.</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>Como texto, barras comparam os valores de várias medições: o maior de cada tipo ocupa a faixa toda, e &quot;--&quot; aparece onde
uma medição não tem nenhum. As linhas cabem no terminal, ou em 80 colunas. Uma tabela Markdown serve para fóruns. CSV tem
uma linha por medição, com números puros para planilhas e scripts. JSON é uma lista do conteúdo de arquivos de medição.</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>Um arquivo que não pode ser mostrado gera uma linha na saída de erro, e os outros são mostrados.</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>Status de saída: 0 todas foram mostradas, 1 nem todas, 2 uso incorreto.</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>Mostra medições a partir de seus arquivos, também várias lado a lado</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>não há medição %1 no histórico</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 corresponde a várias medições</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>Medição</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
</context>
<context>
    <name>HostProgress</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>&quot;1.2 GiB of 5.0 GiB&quot; are written; the numbers stand in columns of a fixed width.</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Iniciando</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>%1 restantes</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>Parando, removendo os arquivos de teste</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>Preparando o arquivo de teste, %1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>Iniciando, %1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>Sustentada</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Pico</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Mínima</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operações</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>Pior</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>Criar</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Consultar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>falta um RUNFILE para desenhar</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 é de um ano no máximo</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>não há opção %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 não aceita valor</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 precisa de um valor: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 só pode ser usado com %2</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 precisa de um número inteiro de %2 a %3, não %4</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 precisa de um número de bytes, como 4096, 64K ou 5GiB, de %2 a %3, não %4</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 precisa de um número de segundos, 0 ou mais, não %2</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>falta um FOLDER</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>um FOLDER por vez</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 é text, markdown, csv ou json, não %2</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 precisa do nome de um arquivo</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 não aceita operando</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 precisa de %2</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>um arquivo de medição contém uma medição, não %1</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>%1 é necessário quando o nome de FILE não termina em .tarnwickrun, .csv, .json, .md ou .txt</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 precisa de RUNs ou de %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 só pode ser usado com %2 e %3</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 aceita list, show, export e delete, não %2</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>falta um comando; consulte %1</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>não há comando %1; consulte %2</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>falta um FOLDER para medir</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>falta um FOLDER para verificar</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>um FOLDER por vez, não também %1</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>o nome de FOLDER está vazio</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: não há teste %2, só %3</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 é light ou dark, não %2</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>falta um FILE para mostrar</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>Pronto para medir</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>Escolha um volume para começar</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>Ajuste os testes e as configurações à esquerda e clique em “Iniciar medição”.</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>Escolha um volume montado ou uma pasta na barra de ferramentas.</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>Todo o espaço livre</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
        <translation>Não</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Após %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Amostras espalhadas por todo o espaço escolhido são gravadas, lidas de volta e removidas. Leva alguns segundos, descobre a maioria das capacidades falsas e não prova nada se não encontrar nenhuma.</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>Dados de teste (%1) são gravados, lidos de volta, comparados e removidos. Seus arquivos não são tocados.</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>Todo o espaço livre é preenchido, lido de volta, comparado e liberado. Seus arquivos não são tocados.</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>Todo o espaço livre, cerca de %1, é preenchido, lido de volta, comparado e liberado. Em um volume grande isso leva horas; enquanto isso, o volume fica cheio para os outros programas. Seus arquivos não são tocados.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>%1% da verificação</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>em uma parte</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>em %1 parte</numerusform>
            <numerusform>em %1 partes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>De %1 a %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
        <translation>Verificado</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texto copiado</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Não foi possível copiar o texto.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Não foi possível salvar o arquivo: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Salvo como “%1”</translation>
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
        <translation>Unidade %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>concluído</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>em andamento</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>pendente</translation>
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
        <translation>Faltam alguns segundos</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>Faltam alguns segundos deste teste</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>Falta cerca de %n s</numerusform>
            <numerusform>Faltam cerca de %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>Falta cerca de %n s deste teste</numerusform>
            <numerusform>Faltam cerca de %n s deste teste</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>Falta cerca de %n min</numerusform>
            <numerusform>Faltam cerca de %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>Falta cerca de %n min deste teste</numerusform>
            <numerusform>Faltam cerca de %n min deste teste</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>Falta cerca de %n h</numerusform>
            <numerusform>Faltam cerca de %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>Falta cerca de %n h deste teste</numerusform>
            <numerusform>Faltam cerca de %n h deste teste</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 de %2 operação</numerusform>
            <numerusform>%1 de %2 operações</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparando…</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>Medição completa</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menus</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>Selecione medições para comparar</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>Medições anteriores</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>Limpar</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>Comparar (%n)</numerusform>
            <numerusform>Comparar (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>medição atual</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>Excluir todas as medições salvas?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Excluir todas</translation>
    </message>
</context>
<context>
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>No máximo %1 do que foi gravado chegou ao disco durante o teste.</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>%1 do que foi gravado chegou ao disco durante o teste.</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>No máximo %1 do que foi lido veio do disco.</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>%1 do que foi lido veio do disco.</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>Nem tudo o que foi gravado pôde ser descarregado no disco: %1.</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>O arquivo de teste não pôde ser descarregado no disco: %1.</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>%1 nos primeiros %2, depois %3.</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>A unidade chegou a %1 após %2 (limite: %3), e a partir daí a velocidade foi %4 menor.</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>Uma pausa de mais de 1 s: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>%1 pausa de mais de 1 s, a mais longa de %2.</numerusform>
            <numerusform>%1 pausas de mais de 1 s, a mais longa de %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>Outros programas transferiram %1 no mesmo disco durante o teste.</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>A conexão %1 da unidade funciona a %2; a unidade poderia chegar a %3.</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>A partição começa %1 depois do início de um bloco físico de %2.</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>Só %1 do volume estava livre.</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>Os %1 do teste podem caber em um cache de %2.</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>O computador estava usando a bateria.</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>O processador estava configurado para economizar energia.</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>O computador estava usando a bateria, com o processador configurado para economizar energia.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>O sistema de arquivos grava alterações em novos lugares e usa somas de verificação dos dados.</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>O sistema de arquivos grava alterações em novos lugares.</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>Ative “Ignorar o cache”. Se já estiver ativado, escolha um tamanho maior que a memória do computador.</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>Consulte o status S.M.A.R.T. da unidade e o log do sistema antes de confiar dados a ela.</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>Os dados passaram por um cache, embora se tenha pedido ao sistema para ignorá-lo.</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>Escolha um tamanho maior que a memória do computador ou teste o disco subjacente por outro sistema de arquivos.</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>Conte com a velocidade menor quando mais do que isso for transferido de uma vez.</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>Dê mais ventilação ou um dissipador à unidade e meça de novo quando ela esfriar.</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>Meça de novo. Se elas voltarem, examine o status S.M.A.R.T. da unidade e seu cabo.</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>Meça de novo quando nada mais estiver usando o disco.</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>Tente outra porta, outro slot ou outro cabo.</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>Recrie a partição, começando em um múltiplo de 1 MiB. Isso apaga os dados dela.</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>Libere espaço: muitas unidades e sistemas de arquivos ficam mais lentos quando cheios.</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>Escolha um tamanho maior e ative “Ignorar o cache”.</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>Meça de novo com o computador na tomada e sem economia de energia.</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>O disco por trás deste volume não pode ser visto, então nada mostra o que ele próprio fez.</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>Este volume mantém os arquivos na memória; nenhum disco foi medido.</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>Escolha uma pasta em um disco.</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>Este volume é um arquivo em outro volume.</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>Para medir aquele volume em si, escolha uma pasta nele.</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>O disco é de uma máquina virtual, cujo hospedeiro pode mantê-lo em cache.</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>O sistema de arquivos comprime. Os dados do teste não são compressíveis, então outros arquivos podem ser mais rápidos.</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>O sistema de arquivos grava os dados duas vezes, primeiro no journal.</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>Esta pasta foi acessada pelo portal da área de trabalho, um programa que faz parte dos valores.</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>Permita que o ambiente isolado use a própria pasta e escolha-a de novo.</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>Inválido</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>Analisador de velocidade de discos e de volumes</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>Escaneie para medir o seu</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>Tipo de relato</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>Pedido de recurso</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>Resumo — uma descrição de uma linha</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>O que você gostaria que o %1 fizesse?</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>O que aconteceu? Como reproduzir e o que você esperava.</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>E-mail — opcional, se quiser uma resposta</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>Serão anexados: %1 %2 · %3 · %4.</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — Comparação</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>Obrigado</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Relatar um problema</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>Seu relato foi registrado. Obrigado por ajudar a melhorar o %1.</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>Relatar pela web:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Iniciar medição</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>Taxa de transferência ao longo do tempo</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Área sombreada: o último terço de cada teste, cuja mediana é a velocidade sustentada. Triângulos: velocidade de pico e velocidade mínima.</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>Medição</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1 (inválido)</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observações</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n medição</numerusform>
            <numerusform>Ondel Tarnwick — %n medições</numerusform>
        </translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texto copiado</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>Tabela copiada</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>Não foi possível copiar o texto.</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>Listas de medições</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Medições do Tarnwick</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>Tabelas CSV</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>Não foi possível salvar o arquivo: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Salvo como “%1”</translation>
    </message>
</context>
<context>
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>Valor que não é do disco: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Valores que não são do disco: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Leitura aleatória %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>Gravação aleatória %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operações com arquivos</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>Leitura/gravação</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
        <translation>Acesso aleatório</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>Livre</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>Ignorado</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>Usado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>Valores copiados</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>Não foi possível copiar os valores.</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1, valor que não é do disco</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>Gravação sequencial</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>Leitura sequencial</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>Renomear relatório…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>Compartilhar imagem do relatório…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Copiar valores</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copiar como tabela Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Salvar arquivo de medição…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exportar CSV…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>Comparar com a última medição deste volume</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>Excluir medição</translation>
    </message>
</context>
<context>
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Há uma verificação de capacidade em andamento</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Há uma medição em andamento</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>gravação %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>leitura %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>A medição falhou</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Medição concluída</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>A verificação de capacidade falhou</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Verificação de capacidade concluída</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>Sobre estes valores</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>O que significam estas observações</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>Leitura aleatória</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>Gravação aleatória</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>Op. arq.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>pico %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>mínima %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1, pico</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1, mínima</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1, latência</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>Sobre estes valores</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>Servidor %1</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>Servidor de rede</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>Unidade externa</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>Volume de rede</translation>
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
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>Salvar estes valores como arquivo de texto</translation>
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
        <translation>%1  (atenção)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Relatório S.M.A.R.T. do Ondel Tarnwick</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>Bloco de gravação</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>Bloco de leitura</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>Bloco aleatório</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>Ignorar o cache</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  ideal</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <extracomment>Button: opens a menu</extracomment>
        <translation>Compartilhar</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>Copiar imagem</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salvar como…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>Enviar por e-mail…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Copiar como tabela Markdown</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>Salvar arquivo de medição…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>Salvar medições…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exportar CSV…</translation>
    </message>
</context>
<context>
    <name>SharedImageText</name>
    <message>
        <source>Image copied</source>
        <translation>Imagem copiada</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>Não foi possível copiar a imagem.</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>Não foi possível salvar a imagem: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>Salvo como “%1”</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Não foi possível abrir a pasta.</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>Não foi possível abrir nenhum programa de e-mail.</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>Testes e configurações</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>Verificando…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Medindo…</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>Concluída</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>O %1 é gratuito.</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>Se ele é útil para você, seu apoio ajuda a mantê-lo.</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Apoiar no Ko-fi</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>Ocultar por uma semana</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>Já apoiei o %1</translation>
    </message>
</context>
<context>
    <name>TargetFactsText</name>
    <message>
        <source>Sparse files</source>
        <translation>Arquivos esparsos</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>Clonagem</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Instantâneos</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>Links físicos</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>Links simbólicos</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>Xattr</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>Maiúsculas: desconhecido</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>Diferencia maiúsculas</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>Ignora maiúsculas</translation>
    </message>
    <message>
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 externo</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 interno</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 removível</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 de rede</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>Não foi possível abrir a pasta.</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>Tamanho ideal de E/S</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>Tamanho do bloco</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>Nome máximo</translation>
    </message>
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 caractere</numerusform>
            <numerusform>%1 caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>Caminho máximo</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>Livre</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Desconhecido: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Sem valores S.M.A.R.T.: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>Escolha uma pasta no volume a testar (uma pasta de trabalho temporária é criada ali e depois removida).</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>Selecionar</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>a janela que já está aberta não responde; ela fará o que foi pedido assim que puder.</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>a janela que já está aberta (processo %1) não responde; ela fará o que foi pedido assim que puder.</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>Gravação</translation>
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
        <translation>Sobre o Ondel Tarnwick</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Procurar atualizações…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Escolher pasta…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>Abrir arquivo de medição…</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
        <translation>&amp;Medição</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>Iniciar medição</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Verificar capacidade…</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Menu entry: begins to choose runs</extracomment>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Desfazer exclusão</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Ajuda do Tarnwick</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>Relatar um problema…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Apoiar o Tarnwick…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation>Igual ao da área de trabalho</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Procurar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>Procura uma nova versão cerca de uma vez por dia e pergunta antes de instalá-la. Se desativado, o Tarnwick só procura quando você escolhe “Procurar atualizações”.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Procurar agora</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Esta compilação não se atualiza sozinha. As compilações de desenvolvimento são feitas sem o canal de atualizações, por isso não podem se substituir por uma versão final.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Idioma da janela</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>A mudança na janela vale a partir da próxima vez que o Tarnwick for iniciado.</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>Imagens compartilhadas em inglês</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>Se desativado, os textos delas ficam no idioma da janela.</translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>Apoiar o Tarnwick</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>O Tarnwick é gratuito e feito por um único desenvolvedor. O apoio cobre a hospedagem e o tempo necessário para mantê-lo.</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Apoiar no Ko-fi…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Já apoiei o Tarnwick</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>Oculta o aviso de apoio no pé da barra lateral.</translation>
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
        <translation>Taxa de transferência ao longo do tempo</translation>
    </message>
</context>
<context>
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: de %2 a %3 %6 em %4, por último %5 %6.</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>Ainda não há medidas.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>%n medição excluída</numerusform>
            <numerusform>%n medições excluídas</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Medição excluída</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
    </message>
</context>
<context>
    <name>UpdateWords</name>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much of the update has been loaded</extracomment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Procurar atualizações automaticamente?</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Procurando atualizações…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>Você já tem a versão mais recente</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>Há uma nova versão do %1</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>Baixando a atualização…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>Verificando a assinatura da atualização…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>A atualização está pronta para instalar</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>Não foi possível procurar atualizações</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>Não foi possível obter a atualização</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>O %1 pode procurar uma nova versão cerca de uma vez por dia. Ele não envia nada sobre você nem sobre seus discos e pergunta antes de baixar qualquer coisa.</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>O %1 %2 é a versão mais recente.</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>Você tem a versão %1. Tamanho do download da versão %2: %3.</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>O %1 %2 está assinado pelo desenvolvedor. O instalador de programas do seu sistema continua a partir daqui.</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>Procurar automaticamente</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Instalar atualização</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>Não procurar</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>Não foi possível acessar o servidor de atualizações. Verifique a conexão com a internet e tente de novo.</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>Não foi possível ler a resposta do servidor de atualizações.</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>O servidor de atualizações desta compilação não é acessado por uma conexão segura, por isso nada foi solicitado a ele.</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>Há uma nova versão do %1, mas o servidor de atualizações não informa o necessário para baixá-la com segurança.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>Não foi possível baixar a atualização. Verifique a conexão com a internet e tente de novo.</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>O arquivo baixado não tem o tamanho que a atualização deveria ter, por isso foi descartado.</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>O arquivo baixado não está assinado pelo desenvolvedor do %1, por isso foi descartado.</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>Não há espaço suficiente para a atualização na pasta temporária.</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>Não foi possível gravar a atualização na pasta temporária.</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>Nenhum programa deste sistema abre o pacote da atualização.</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Selecionar um volume</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>Nenhum volume selecionado</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>Volumes montados</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Escolher pasta…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>Verificar capacidade…</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>Interno</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>Externo</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>Removível</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>Raiz</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>Pasta compartilhada</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>Encher disco</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>Sustentada: a velocidade mediana do último terço do teste, na qual uma cópia longa se estabiliza; o pico e o mínimo são seu décimo de segundo mais rápido e seu décimo de segundo mais lento.</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>Faz os dados passarem ao largo da memória do sistema, para medir o disco e não o cache.</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>Grava um arquivo grande do início ao fim e o descarrega no disco, como faz uma cópia longa para este volume.</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>Lê um arquivo grande do início ao fim, como faz uma cópia longa a partir deste volume.</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Lê blocos em lugares dispersos do arquivo, um de cada vez, como faz a maioria dos programas: vários ao mesmo tempo mediriam a fila da unidade, e não quanto tempo se espera; IOPS são essas operações por segundo.</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>Grava blocos em lugares dispersos do arquivo, um de cada vez, como faz a maioria dos programas: vários ao mesmo tempo mediriam a fila da unidade, e não quanto tempo se espera; IOPS são essas operações por segundo.</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>Cria, consulta, renomeia e exclui arquivos vazios; o valor é quantos foram criados por segundo.</translation>
    </message>
</context>
</TS>
