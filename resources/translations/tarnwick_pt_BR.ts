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
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
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
        <source>The server rejected the report (%1).</source>
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
        <source>Close</source>
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
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leitura</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
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
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>As amostras contêm o que foi gravado, mas ficam muito próximas umas das outras.</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>Amostras espalhadas por %1 contêm o que foi gravado, o que não é prova.</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>Amostras espalhadas por %1 de espaço livre contêm o que foi gravado, o que não é prova.</translation>
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
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>O que nenhuma verificação revela: se o espaço ocupado pelos seus arquivos está íntegro, o que a unidade mantém de reserva e se um bloco reparado vai durar.</translation>
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
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>A verificação foi interrompida: não se sabe como está o que ela não leu de volta.</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>Uma verificação rápida grava só em alguns lugares. Ela descobre a maioria das capacidades falsas em segundos; não encontrar nada não prova nada.</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>Foi verificado menos que o planejado: outros programas podem ter ocupado o espaço.</translation>
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
        <source>Capacity of %1</source>
        <translation>Capacidade de %1</translation>
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
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leitura</translation>
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
        <translation>Gravação ao longo do tempo</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>Leitura ao longo do tempo</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>Comparação de medições</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>%1 medições comparadas</translation>
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
    <message>
        <source>Comparing %1 runs</source>
        <translation>Comparando %1 medições</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>Compartilhar uma imagem da comparação</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>Diferenças em relação a</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
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
        <translation>Renomeie este relatório. O nome também aparece nas imagens que você compartilha.</translation>
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
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>Encher o disco?</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>O teste grava até restarem %1 livres e depois remove tudo. Em uma unidade grande isso demora, e até o fim do teste faltará espaço para tudo o mais que precisar dele.</translation>
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
        <translation>Com falha</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Aprovado</translation>
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
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leitura</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>Excluir “%1”</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>Excluir esta medição</translation>
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
        <translation>Aviso</translation>
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
        <translation>Unidade %1 °C</translation>
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
        <source>the volume</source>
        <translation>volume</translation>
    </message>
    <message>
        <source>Volume</source>
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
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>Comparar (%1)</translation>
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
        <translation>Excluir tudo</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
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
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Medições do Tarnwick</translation>
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
        <translation>Será anexado: %1 %2 · %3 · %4.</translation>
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
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>Área sombreada: o último terço de cada teste, cuja mediana é a velocidade sustentada. Triângulos: velocidade de pico e velocidade mínima.</translation>
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
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>Há uma verificação de capacidade em andamento</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>Há uma medição em andamento</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>A medição falhou</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>gravação %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>leitura %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>Medição concluída</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>Verificação de capacidade concluída</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>A verificação de capacidade falhou</translation>
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
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
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
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Write</source>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>&amp;Run</source>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation>Todo o espaço livre</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Após %1</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>Amostras espalhadas por todo o espaço escolhido são gravadas, lidas de volta e removidas. Leva segundos, descobre a maioria das capacidades falsas e não prova nada se não encontrar nenhuma.</translation>
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
        <translation>De %1 a %2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
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
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>concluído</translation>
    </message>
    <message>
        <source>running</source>
        <translation>em andamento</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>pendente</translation>
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
        <translation>Alguns segundos</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>Cerca de %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>Cerca de %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>Cerca de %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 restantes</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>%1 restantes neste teste</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 operações</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>Preparando…</translation>
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
        <translation>%1 medições</translation>
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
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>referência</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>Valor que não é do disco: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>Valores que não são do disco: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>Leitura aleatória %1</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>Gravação aleatória %1</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>Operações com arquivos</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>Gravação/leitura</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leitura</translation>
    </message>
    <message>
        <source>Random</source>
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
        <translation>Livre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>Ignorado</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>Com cache</translation>
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
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
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
    <name>TarnwickKit::views::TargetFacts</name>
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
        <translation>Diferenciação desconhecida</translation>
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
    <message>
        <source>%1 chars</source>
        <translation>%1 caracteres</translation>
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
        <translation>Livre</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>Desconhecido: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>Sem valores S.M.A.R.T.: %1</translation>
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
        <translation>Procura uma nova versão cerca de uma vez por dia e pergunta antes de instalá-la. Com isto desligado, o Tarnwick só procura quando você escolhe “Procurar atualizações”.</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Procurar agora</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>Esta compilação não se atualiza sozinha. As compilações de desenvolvimento são feitas sem o canal de atualizações, para que não possam ser substituídas por uma versão final.</translation>
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
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>%1 medições excluídas</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>Medição excluída</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
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
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
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
        <translation>Cria, procura, renomeia e exclui arquivos vazios; o valor é quantos foram criados por segundo.</translation>
    </message>
</context>
</TS>
