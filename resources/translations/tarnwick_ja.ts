<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Support %1</source>
        <translation>%1 を支援</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>謝辞</translation>
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
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>BaseButton</name>
    <message>
        <source>Not available now</source>
        <translation>現在は利用できません</translation>
    </message>
</context>
<context>
    <name>BaseMenuItem</name>
    <message>
        <source>Not available now</source>
        <translation>現在は利用できません</translation>
    </message>
</context>
<context>
    <name>BenchmarkText</name>
    <message>
        <source>Not enough space: needs %1, only %2 free.</source>
        <translation>空き容量が足りません: %1 が必要ですが、空きは %2 だけです。</translation>
    </message>
    <message>
        <source>I/O error: %1</source>
        <translation>I/O エラー: %1</translation>
    </message>
    <message>
        <source>Couldn’t write there. The volume may be read-only, or the folder may not allow it.</source>
        <translation>そこに書き込めませんでした。ボリュームが読み取り専用か、フォルダーへの書き込みが許可されていない可能性があります。</translation>
    </message>
    <message>
        <source>The test file is too small for the random block size.</source>
        <translation>テストファイルがランダムブロックのサイズに対して小さすぎます。</translation>
    </message>
    <message>
        <source>Sequential write</source>
        <translation>シーケンシャル書き込み</translation>
    </message>
    <message>
        <source>Sequential read</source>
        <translation>シーケンシャル読み取り</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>ランダム読み取り</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>ランダム書き込み</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>ファイル操作</translation>
    </message>
    <message>
        <source>files/s</source>
        <extracomment>A unit, like MB/s</extracomment>
        <translation>ファイル/秒</translation>
    </message>
    <message>
        <source>p99 %1</source>
        <extracomment>The time within which 99 % of all operations were done</extracomment>
        <translation>p99 %1</translation>
    </message>
    <message>
        <source>worst %1</source>
        <extracomment>The longest time that an operation took</extracomment>
        <translation>最大 %1</translation>
    </message>
    <message>
        <source>The folder was removed or its volume unplugged during the run.</source>
        <translation>計測中に、フォルダーが削除されたか、そのボリュームが取り外されました。</translation>
    </message>
    <message>
        <source>The volume was unplugged, or its server is gone.</source>
        <translation>ボリュームが取り外されたか、サーバーがなくなりました。</translation>
    </message>
    <message>
        <source>The drive reported an error, or was unplugged during the run.</source>
        <translation>計測中に、ドライブがエラーを報告したか、取り外されました。</translation>
    </message>
    <message>
        <source>The volume can only be read: systems switch to that when they find an error on it.</source>
        <translation>ボリュームは読み取りしかできません。システムは、エラーを見つけるとこの状態に切り替えます。</translation>
    </message>
    <message>
        <source>The volume became full during the run, or your share of it is used up.</source>
        <translation>計測中にボリュームがいっぱいになったか、割り当て量を使い切りました。</translation>
    </message>
    <message>
        <source>The file system, or a limit of this session, does not allow files of this size.</source>
        <translation>ファイルシステムまたはこのセッションの制限により、この大きさのファイルは許可されていません。</translation>
    </message>
    <message>
        <source>The permissions of the folder changed during the run, or the system forbids this there.</source>
        <translation>計測中にフォルダーのアクセス権が変わったか、システムがそこでの操作を禁止しています。</translation>
    </message>
    <message>
        <source>There is not enough memory for blocks of this size.</source>
        <translation>この大きさのブロックに必要なメモリーが足りません。</translation>
    </message>
    <message>
        <source>Too many files are open at the moment; close some programs and try again.</source>
        <translation>現在開いているファイルが多すぎます。いくつかのプログラムを閉じてもう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
        <extracomment>The highest and the lowest rate, on two lines</extracomment>
        <translation>ピーク %1
最低 %2</translation>
    </message>
    <message>
        <source>peak %1 · min %2</source>
        <translation>ピーク %1 · 最低 %2</translation>
    </message>
</context>
<context>
    <name>BugReporter</name>
    <message>
        <source>Couldn’t reach the server. Check your connection and try again.</source>
        <translation>サーバーに接続できませんでした。接続を確認してもう一度お試しください。</translation>
    </message>
    <message>
        <source>The answer&apos;s head is too long</source>
        <translation>応答のヘッダーが長すぎます</translation>
    </message>
    <message>
        <source>No proxy can be used</source>
        <translation>使用できるプロキシがありません</translation>
    </message>
    <message>
        <source>libcurl.so.4 cannot be loaded</source>
        <translation>libcurl.so.4 を読み込めません</translation>
    </message>
    <message>
        <source>The report can’t be sent from this sandbox, which has no network.</source>
        <translation>このサンドボックスにはネットワークがないため、レポートを送信できません。</translation>
    </message>
    <message>
        <source>The server rejected the report (%1).</source>
        <extracomment>%1 is a status of HTTP, as 500</extracomment>
        <translation>サーバーがレポートを拒否しました（%1）。</translation>
    </message>
</context>
<context>
    <name>CapabilitiesSection</name>
    <message>
        <source>Volume Capabilities</source>
        <translation>ボリュームの機能</translation>
    </message>
</context>
<context>
    <name>CapacityChoices</name>
    <message>
        <source>Is the volume as large as it says, and does it keep what it is given?</source>
        <translation>ボリュームは表示どおりの大きさで、書き込んだ内容を保持しますか？</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>検査する領域</translation>
    </message>
    <message>
        <source>Read a second time</source>
        <translation>もう一度読み取る</translation>
    </message>
    <message>
        <source>Quick: samples only</source>
        <translation>簡易: サンプルのみ</translation>
    </message>
    <message>
        <source>Start Check</source>
        <translation>検査を開始</translation>
    </message>
</context>
<context>
    <name>CapacityFinding</name>
    <message>
        <source>Save Report…</source>
        <translation>レポートを保存…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the report as text</source>
        <translation>レポートをテキストとしてコピー</translation>
    </message>
    <message>
        <source>New Check</source>
        <translation>新しい検査</translation>
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
        <translation>停止</translation>
    </message>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>CapacityPane</name>
    <message>
        <source>Capacity of %1</source>
        <translation>%1 の容量</translation>
    </message>
    <message>
        <source>Capacity of the volume</source>
        <translation>ボリュームの容量</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the capacity check</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>計測一覧に戻る</translation>
    </message>
</context>
<context>
    <name>CapacityRange</name>
    <message>
        <source>Map of the checked space</source>
        <translation>検査領域のマップ</translation>
    </message>
    <message>
        <source>Rate along the space, up to %1 MB/s</source>
        <translation>領域全体にわたる速度、最大 %1 MB/s</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>読み取り</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
    <message>
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>どの検査でも分からないこと: 既存のファイルが占める領域が健全か、ドライブに予備領域がどれだけ残っているか、修復されたブロックが今後も持つか。</translation>
    </message>
    <message>
        <source>This file system sets no space aside without writing it, so the samples could not be spread. The result says nothing about the size of the volume: run a check that is not quick.</source>
        <translation>このファイルシステムは書き込まずに領域を確保できないため、サンプルを分散できませんでした。結果からボリュームの容量については何も言えません。簡易ではない検査を実行してください。</translation>
    </message>
    <message>
        <source>A quick check writes a few places only: what lies between them was not looked at.</source>
        <translation>簡易検査は数か所にしか書き込みません。その間の部分は調べていません。</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>簡易検査は数か所にしか書き込みません。容量の偽装の大半は数秒で見つかりますが、見つからなくても問題がない証明にはなりません。</translation>
    </message>
    <message>
        <source>Less was checked than planned: the volume was full too early. It may have lost data of the file system itself.</source>
        <translation>予定より少ない量しか検査されませんでした。ボリュームが早くいっぱいになりすぎました。ファイルシステム自体のデータが失われた可能性があります。</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>予定より少ない量しか検査されませんでした。ほかのプログラムが領域を使用した可能性があります。</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory: no disk was checked.</source>
        <translation>このボリュームはファイルをメモリーに置いています。ディスクは検査されていません。</translation>
    </message>
    <message>
        <source>Only %1 % of what was read came from the disk. Check more than the machine’s memory can hold.</source>
        <translation>読み取った内容のうち、ディスクから読み取られたのは %1% だけです。このコンピューターのメモリーに収まらない量を検査してください。</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so what came back may have come from a cache.</source>
        <translation>このボリュームの背後にあるディスクを特定できないため、読み戻した内容はキャッシュから返された可能性があります。</translation>
    </message>
    <message>
        <source>What is written beyond its real size is lost, or destroys what lies elsewhere on it. Copy what you need from it, and do not trust it.</source>
        <translation>実容量を超えて書き込んだ内容は、失われるか、ほかの場所の内容を破壊します。必要なものをコピーして取り出し、このボリュームは信用しないでください。</translation>
    </message>
    <message>
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>検査が停止されたため、読み戻していない部分については分かりません。</translation>
    </message>
    <message>
        <source>This file system returns nothing that does not match its checksums: changed data cannot be read on it.</source>
        <translation>このファイルシステムはチェックサムと一致しない内容を返しません。変わったデータをこの上で読み取ることはできません。</translation>
    </message>
    <message>
        <source>Capacity of %1</source>
        <translation>%1 の容量</translation>
    </message>
    <message>
        <source>This volume keeps only the first %1 of what is written to it.</source>
        <translation>このボリュームは、書き込まれた内容のうち先頭の %1 しか保持しません。</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only the first %2.</source>
        <translation>このボリュームは %1 と称していますが、先頭の %2 しか保持しません。</translation>
    </message>
    <message>
        <source>This volume claims %1, but keeps only about the first %2.</source>
        <translation>このボリュームは %1 と称していますが、先頭の約 %2 しか保持しません。</translation>
    </message>
    <message>
        <source>One block at %1 came back changed.</source>
        <translation>%1 の位置にある 1 ブロックの内容が変わっていました。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 came back changed.</source>
        <translation>
            <numerusform>%2 の位置にある %1 ブロックの内容が変わっていました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks came back changed, the first at %2.</source>
        <translation>
            <numerusform>%1 ブロックの内容が変わっていました。最初の位置は %2 です。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 came back changed, the first block at %3.</source>
        <translation>%2 のうち %1 の内容が変わっていました。最初のブロックの位置は %3 です。</translation>
    </message>
    <message>
        <source>One block at %1 was right at first, and changed later.</source>
        <translation>%1 の位置にある 1 ブロックは、はじめは正しく、後で変わりました。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 were right at first, and changed later.</source>
        <translation>
            <numerusform>%2 の位置にある %1 ブロックは、はじめは正しく、後で変わりました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks were right at first and changed later, the first at %2.</source>
        <translation>
            <numerusform>%1 ブロックは、はじめは正しく、後で変わりました。最初の位置は %2 です。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 were right at first and changed later, the first block at %3.</source>
        <translation>%2 のうち %1 は、はじめは正しく、後で変わりました。最初のブロックの位置は %3 です。</translation>
    </message>
    <message>
        <source>One block at %1 could not be read.</source>
        <translation>%1 の位置にある 1 ブロックを読み取れませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be read.</source>
        <translation>
            <numerusform>%2 の位置にある %1 ブロックを読み取れませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be read, the first at %2.</source>
        <translation>
            <numerusform>%1 ブロックを読み取れませんでした。最初の位置は %2 です。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could not be read, the first block at %3.</source>
        <translation>%2 のうち %1 を読み取れませんでした。最初のブロックの位置は %3 です。</translation>
    </message>
    <message>
        <source>One block at %1 could not be written.</source>
        <translation>%1 の位置にある 1 ブロックに書き込めませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could not be written.</source>
        <translation>
            <numerusform>%2 の位置にある %1 ブロックに書き込めませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could not be written, the first at %2.</source>
        <translation>
            <numerusform>%1 ブロックに書き込めませんでした。最初の位置は %2 です。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 beside %2 could not be written, the first block at %3.</source>
        <translation>書き込めた %2 のほかに、%1 に書き込めませんでした。最初のブロックの位置は %3 です。</translation>
    </message>
    <message>
        <source>One block at %1 could be written or read only at a second try.</source>
        <translation>%1 の位置にある 1 ブロックは、再試行しないと読み書きできませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 could be written or read only at a second try.</source>
        <translation>
            <numerusform>%2 の位置にある %1 ブロックは、再試行しないと読み書きできませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks could be written or read only at a second try, the first at %2.</source>
        <translation>
            <numerusform>%1 ブロックは、再試行しないと読み書きできませんでした。最初の位置は %2 です。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 could be written or read only at a second try, the first block at %3.</source>
        <translation>%2 のうち %1 は、再試行しないと読み書きできませんでした。最初のブロックの位置は %3 です。</translation>
    </message>
    <message>
        <source>One block at %1 did not come back as it was written.</source>
        <translation>%1 の位置にある 1 ブロックを、書き込んだとおりに読み戻せませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks at %2 did not come back as they were written.</source>
        <translation>
            <numerusform>%2 の位置にある %1 ブロックを、書き込んだとおりに読み戻せませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 blocks did not come back as they were written, the first at %2.</source>
        <translation>
            <numerusform>%1 ブロックを、書き込んだとおりに読み戻せませんでした。最初の位置は %2 です。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 did not come back as they were written, the first block at %3.</source>
        <translation>%2 のうち %1 を、書き込んだとおりに読み戻せませんでした。最初のブロックの位置は %3 です。</translation>
    </message>
    <message>
        <source>Before it was stopped, the check met blocks that did not come back as they were written, the first at %1.</source>
        <translation>検査が停止されるまでに、書き込んだとおりに読み戻せないブロックが見つかりました。最初の位置は %1 です。</translation>
    </message>
    <message>
        <source>The volume could be written up to %1 of %2, and refused everything beyond.</source>
        <translation>ボリュームに書き込めたのは %2 のうち %1 までで、それ以降はすべて拒否されました。</translation>
    </message>
    <message>
        <source>The check was stopped before anything was read back.</source>
        <translation>読み戻す前に検査が停止されました。</translation>
    </message>
    <message>
        <source>The check was stopped when %1 of %2 had come back as written.</source>
        <translation>%2 のうち %1 を書き込んだとおりに読み戻した時点で、検査が停止されました。</translation>
    </message>
    <message>
        <source>This file system cannot spread samples: only %1 in one place were checked, and hold what was written.</source>
        <translation>このファイルシステムではサンプルを分散できません。1 か所の %1 だけを検査し、書き込んだ内容は保持されています。</translation>
    </message>
    <message>
        <source>Samples all over %1 hold what was written, which is no proof.</source>
        <translation>%1 の全体にわたるサンプルは書き込んだ内容を保持していますが、これは証明にはなりません。</translation>
    </message>
    <message>
        <source>Samples all over %1 of free space hold what was written, which is no proof.</source>
        <translation>空き容量 %1 の全体にわたるサンプルは書き込んだ内容を保持していますが、これは証明にはなりません。</translation>
    </message>
    <message>
        <source>Your share of the volume was used up after %1 of %2; these hold what was written.</source>
        <translation>%2 のうち %1 でボリュームの割り当て量を使い切りました。書き込んだ分の内容は保持されています。</translation>
    </message>
    <message>
        <source>The volume was full after %1 of %2; these hold what was written.</source>
        <translation>%2 のうち %1 でボリュームがいっぱいになりました。書き込んだ分の内容は保持されています。</translation>
    </message>
    <message>
        <source>All %1 came back as written, but mostly from memory: that says little about the disk.</source>
        <translation>%1 すべてを書き込んだとおりに読み戻しましたが、大部分はメモリーから読み取られたため、ディスクについてはほとんど何も言えません。</translation>
    </message>
    <message>
        <source>All %1 hold what was written.</source>
        <translation>%1 すべてが書き込んだ内容を保持しています。</translation>
    </message>
    <message>
        <source>All %1 of free space hold what was written.</source>
        <translation>空き容量 %1 すべてが書き込んだ内容を保持しています。</translation>
    </message>
    <message>
        <source>Claimed size</source>
        <translation>公称容量</translation>
    </message>
    <message>
        <source>Real size</source>
        <translation>実容量</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>約 %1</translation>
    </message>
    <message>
        <source>Space to check</source>
        <translation>検査する領域</translation>
    </message>
    <message>
        <source>%1 of free space</source>
        <translation>空き容量 %1</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>%1, one every %2</source>
        <translation>%1 個、%2 ごとに 1 個</translation>
    </message>
    <message>
        <source>In one place</source>
        <translation>1 か所に集中</translation>
    </message>
    <message>
        <source>It was right at the first reading.</source>
        <translation>最初の読み取りでは正しい内容でした。</translation>
    </message>
    <message>
        <source>At %1, %2: one bit was flipped.</source>
        <translation>%1（%2）: 1 ビットが反転していました。</translation>
    </message>
    <message numerus="yes">
        <source>At %1, %2: %3 bits were flipped.</source>
        <translation>
            <numerusform>%1（%2）: %3 ビットが反転していました。</numerusform>
        </translation>
    </message>
    <message>
        <source>no reason is known</source>
        <translation>理由は不明</translation>
    </message>
    <message>
        <source>At %1, %2: could not be read (%3).</source>
        <translation>%1（%2）: 読み取れませんでした（%3）。</translation>
    </message>
    <message>
        <source>At %1, %2: could not be written (%3).</source>
        <translation>%1（%2）: 書き込めませんでした（%3）。</translation>
    </message>
    <message>
        <source>At %1, %2: could be written or read only at a second try (%3).</source>
        <translation>%1（%2）: 再試行しないと読み書きできませんでした（%3）。</translation>
    </message>
    <message>
        <source>At %1, %2: what was written elsewhere came back.</source>
        <translation>%1（%2）: 別の場所に書き込んだ内容が返されました。</translation>
    </message>
    <message>
        <source>At %1, %2: the block that was written at %3 came back, again and again.</source>
        <translation>%1（%2）: %3 に書き込んだブロックが繰り返し返されました。</translation>
    </message>
    <message>
        <source>At %1, %2: what was written at %3 came back.</source>
        <translation>%1（%2）: %3 に書き込んだ内容が返されました。</translation>
    </message>
    <message>
        <source>At %1, %2: zeros came back.</source>
        <translation>%1（%2）: ゼロが返されました。</translation>
    </message>
    <message>
        <source>At %1, %2: something came back that was never written there.</source>
        <translation>%1（%2）: そこに書き込んだことのない内容が返されました。</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>書き込み済み</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>読み戻し</translation>
    </message>
    <message>
        <source>Read again after %1</source>
        <translation>%1 後に再読み取り</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>書き込みどおり</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変化あり</translation>
    </message>
    <message>
        <source>Could not be read</source>
        <translation>読み取れず</translation>
    </message>
    <message>
        <source>Could not be written</source>
        <translation>書き込めず</translation>
    </message>
    <message>
        <source>Only at a second try</source>
        <translation>再試行で成功</translation>
    </message>
    <message>
        <source>Read from the disk</source>
        <translation>ディスクからの読み取り</translation>
    </message>
    <message>
        <source>And at one more place.</source>
        <translation>ほかに 1 か所。</translation>
    </message>
    <message numerus="yes">
        <source>And at %1 more places.</source>
        <translation>
            <numerusform>ほかに %1 か所。</numerusform>
        </translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>準備中…</translation>
    </message>
    <message>
        <source>Writing samples</source>
        <translation>サンプルを書き込み中</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>書き込み中</translation>
    </message>
    <message>
        <source>Reading back</source>
        <translation>読み戻し中</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Reading again</source>
        <translation>再読み取り中</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>未書き込み</translation>
    </message>
    <message>
        <source>Unreadable</source>
        <translation>読み取り不能</translation>
    </message>
    <message>
        <source>Not writable</source>
        <translation>書き込み不能</translation>
    </message>
</context>
<context>
    <name>CollapsedRunView</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>読み取り</translation>
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
        <translation>使い方: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...
ディスク速度・ボリューム分析ツールを開き、最初のフォルダーを選択し、計測ファイル (*.tarnwickrun) を表示します。
  --check-capacity  そのフォルダーのボリュームの検査に進む
  --choose-folder   フォルダーを尋ねる
</translation>
    </message>
    <message>
        <source>%1 is not a folder or a run file that can be opened.</source>
        <translation>%1 は、開くことのできるフォルダーや計測ファイルではありません。</translation>
    </message>
</context>
<context>
    <name>CompareWithLast</name>
    <message>
        <source>Compare with last run of this volume</source>
        <translation>このボリュームの前回の計測と比較</translation>
    </message>
</context>
<context>
    <name>ComparedCurves</name>
    <message>
        <source>Write over time</source>
        <extracomment>Title of a chart: the rate of the write test</extracomment>
        <translation>書き込みの推移</translation>
    </message>
    <message>
        <source>Read over time</source>
        <extracomment>Title of a chart: the rate of the read test</extracomment>
        <translation>読み取りの推移</translation>
    </message>
</context>
<context>
    <name>ComparedRunsText</name>
    <message>
        <source>reference</source>
        <extracomment>The run that the others are compared with</extracomment>
        <translation>基準</translation>
    </message>
    <message>
        <source>%1, %2: %3 %4</source>
        <extracomment>%1 is what was measured, %2 the name of a run, %3 the figure, %4 its unit</extracomment>
        <translation>%1、%2: %3 %4</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>計測の比較</translation>
    </message>
    <message numerus="yes">
        <source>%n benchmarks compared</source>
        <translation>
            <numerusform>%n 件のベンチマークを比較</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan to try it</source>
        <translation>スキャンして試す</translation>
    </message>
</context>
<context>
    <name>ComparisonChart</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>ディスクの測定値ではない</translation>
    </message>
</context>
<context>
    <name>ComparisonPane</name>
    <message numerus="yes">
        <source>Comparing %n runs</source>
        <translation>
            <numerusform>%n 件の計測を比較</numerusform>
        </translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>比較画像を共有</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button: leaves the comparison</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Differences from</source>
        <extracomment>A list of runs follows, of which one is the reference</extracomment>
        <translation>差の基準</translation>
    </message>
</context>
<context>
    <name>ComparisonText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what was measured</extracomment>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>ランダム読み取り</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>ランダム書き込み</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>ファイル操作</translation>
    </message>
    <message>
        <source>ops/s</source>
        <extracomment>A unit, like IOPS: file operations per second</extracomment>
        <translation>回/秒</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is the free space of a volume</extracomment>
        <translation>空き %1</translation>
    </message>
    <message>
        <source>Fill disk test</source>
        <translation>ディスクをいっぱいにするテスト</translation>
    </message>
    <message>
        <source>%1 test</source>
        <translation>%1 のテスト</translation>
    </message>
    <message>
        <source>R/W %1</source>
        <extracomment>%1 is the size of the blocks that were read and written</extracomment>
        <translation>読み書き %1</translation>
    </message>
    <message>
        <source>W %1</source>
        <extracomment>%1 is the size of the blocks that were written</extracomment>
        <translation>書き込み %1</translation>
    </message>
    <message>
        <source>R %1</source>
        <extracomment>%1 is the size of the blocks that were read</extracomment>
        <translation>読み取り %1</translation>
    </message>
    <message>
        <source>Rnd %1</source>
        <extracomment>%1 is the size of the blocks that were read and written at random</extracomment>
        <translation>ランダム %1</translation>
    </message>
    <message>
        <source>Uncached</source>
        <extracomment>The system&apos;s cache was bypassed</extracomment>
        <translation>キャッシュなし</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>It was not bypassed</extracomment>
        <translation>キャッシュあり</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>DiagnosticsOption</name>
    <message>
        <source>Attach diagnostics</source>
        <translation>診断情報を添付</translation>
    </message>
    <message>
        <source>Recent activity from this session. File names, servers and accounts are replaced with anonymous tokens before anything is written down.</source>
        <translation>このセッションでの最近の動作です。ファイル名、サーバー、アカウントは、記録される前に匿名のトークンに置き換えられます。</translation>
    </message>
    <message>
        <source>View…</source>
        <translation>表示…</translation>
    </message>
</context>
<context>
    <name>DialogsText</name>
    <message>
        <source>Working folder:</source>
        <translation>作業フォルダー:</translation>
    </message>
    <message>
        <source>temporary, is written there and removed</source>
        <translation>一時的なもの。そこに書き込まれ、削除されます</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of a dialog that asks for files</extracomment>
        <translation>開く</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick の計測</translation>
    </message>
</context>
<context>
    <name>DisplayText</name>
    <message>
        <source>“%1” is damaged or not a Tarnwick run.</source>
        <translation>「%1」は壊れているか、Tarnwick の計測ではありません。</translation>
    </message>
    <message>
        <source>“%1” is not a folder or a run file that can be opened.</source>
        <translation>「%1」は、開くことのできるフォルダーや計測ファイルではありません。</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are damaged or not Tarnwick runs.</source>
        <translation>
            <numerusform>「%1」とほか %2 件は、壊れているか、Tarnwick の計測ではありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %2 more are not folders or run files that can be opened.</source>
        <translation>
            <numerusform>「%1」とほか %2 件は、開くことのできるフォルダーや計測ファイルではありません。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DrawerButton</name>
    <message>
        <source>Hide Tests and Settings</source>
        <translation>テストと設定を隠す</translation>
    </message>
    <message>
        <source>Show Tests and Settings</source>
        <translation>テストと設定を表示</translation>
    </message>
</context>
<context>
    <name>EditableRunTitle</name>
    <message>
        <source>Rename this report. The name also appears on images you share.</source>
        <translation>このレポートの名前を変更します。名前は共有する画像にも表示されます。</translation>
    </message>
    <message>
        <source>Report title</source>
        <translation>レポートのタイトル</translation>
    </message>
</context>
<context>
    <name>ExpandedRunPane</name>
    <message>
        <source>Share a report image</source>
        <translation>レポート画像を共有</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>計測を削除</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>折りたたむ</translation>
    </message>
</context>
<context>
    <name>FigureMark</name>
    <message>
        <source>Not the disk’s figure</source>
        <translation>ディスクの測定値ではない</translation>
    </message>
</context>
<context>
    <name>FiguresText</name>
    <message>
        <source>Run: %1 · %2</source>
        <translation>計測: %1 · %2</translation>
    </message>
    <message>
        <source>not the disk’s figure</source>
        <translation>ディスクの測定値ではない</translation>
    </message>
</context>
<context>
    <name>FillQuestion</name>
    <message>
        <source>Fill the disk?</source>
        <translation>ディスクをいっぱいにしますか？</translation>
    </message>
    <message>
        <source>The test writes until %1 is left free, then removes it all. On a large drive this takes a long time, and anything else that needs space on it will run short until the test ends.</source>
        <translation>このテストは空きが %1 になるまで書き込み、その後すべて削除します。大容量のドライブでは長い時間がかかり、テストが終わるまで、そのドライブを使うほかのプログラムでは空き容量が不足します。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Fill Disk</source>
        <translation>ディスクをいっぱいにする</translation>
    </message>
</context>
<context>
    <name>FolderLine</name>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Show in Folder: %1</source>
        <translation>フォルダーに表示: %1</translation>
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
        <translation>これまでの検査</translation>
    </message>
</context>
<context>
    <name>HealthSection</name>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>故障の兆候あり</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>検証済み</translation>
    </message>
    <message>
        <source>S.M.A.R.T.</source>
        <translation>S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>%1 is the verdict (Failing, Verified), %2 a sentence without its full stop</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>HealthText</name>
    <message>
        <source>Critical warning</source>
        <translation>重大な警告</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Life used</source>
        <translation>消耗度</translation>
    </message>
    <message>
        <source>Spare available</source>
        <extracomment>Of a solid state drive: how much of its reserve of memory cells is left</extracomment>
        <translation>予備領域の残量</translation>
    </message>
    <message>
        <source>Spare threshold</source>
        <extracomment>Of a solid state drive: the least reserve of memory cells before it warns</extracomment>
        <translation>予備領域のしきい値</translation>
    </message>
    <message>
        <source>Power-on time</source>
        <translation>使用時間</translation>
    </message>
    <message>
        <source>Power cycles</source>
        <translation>電源投入回数</translation>
    </message>
    <message>
        <source>Load cycles</source>
        <extracomment>How often the heads were parked and loaded again</extracomment>
        <translation>ロード/アンロード回数</translation>
    </message>
    <message>
        <source>Unsafe shutdowns</source>
        <translation>安全でないシャットダウンの回数</translation>
    </message>
    <message>
        <source>Data written</source>
        <translation>総書き込み量</translation>
    </message>
    <message>
        <source>Data read</source>
        <translation>総読み取り量</translation>
    </message>
    <message>
        <source>Host read commands</source>
        <translation>ホスト読み取りコマンド数</translation>
    </message>
    <message>
        <source>Host write commands</source>
        <translation>ホスト書き込みコマンド数</translation>
    </message>
    <message>
        <source>Controller busy</source>
        <extracomment>How long the drive&apos;s controller was busy</extracomment>
        <translation>コントローラービジー時間</translation>
    </message>
    <message>
        <source>Reallocated sectors</source>
        <translation>代替処理済みのセクター</translation>
    </message>
    <message>
        <source>Pending sectors</source>
        <translation>代替処理保留中のセクター</translation>
    </message>
    <message>
        <source>Uncorrectable sectors</source>
        <translation>訂正不能のセクター</translation>
    </message>
    <message>
        <source>Reported uncorrectable</source>
        <extracomment>Errors that the drive reported and could not correct</extracomment>
        <translation>報告された訂正不能エラー</translation>
    </message>
    <message>
        <source>Spin retries</source>
        <translation>スピンアップ再試行回数</translation>
    </message>
    <message>
        <source>Interface CRC errors</source>
        <translation>インターフェイスの CRC エラー</translation>
    </message>
    <message>
        <source>Media errors</source>
        <translation>メディアエラー</translation>
    </message>
    <message>
        <source>Error log entries</source>
        <translation>エラーログ項目数</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>状態</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Spare below threshold</source>
        <translation>予備領域がしきい値未満</translation>
    </message>
    <message>
        <source>Reliability degraded</source>
        <translation>信頼性の低下</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Backup failed</source>
        <translation>バックアップ機構の故障</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>What a drive warns of, in a bit that is not known</extracomment>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1 years</source>
        <extracomment>How long a drive has been switched on; %1 is a number with one decimal, as 1.2</extracomment>
        <translation>%1 年</translation>
    </message>
    <message>
        <source>%1 of %2 disks answered</source>
        <translation>%2 台中 %1 台のディスクが応答</translation>
    </message>
    <message>
        <source>no device is behind this path</source>
        <translation>このパスに対応するデバイスがありません</translation>
    </message>
    <message>
        <source>no disk is behind %1</source>
        <extracomment>A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda</extracomment>
        <translation>%1 に対応するディスクがありません</translation>
    </message>
    <message>
        <source>%1 is no block device</source>
        <translation>%1 はブロックデバイスではありません</translation>
    </message>
    <message>
        <source>%1 does not tell whether it sleeps, so it was left alone</source>
        <translation>%1 はスリープ中かどうかを知らせないため、そのままにしました</translation>
    </message>
    <message>
        <source>%1 is asleep and was left alone</source>
        <translation>%1 はスリープ中のため、そのままにしました</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T., or it is switched off</source>
        <translation>%1 には S.M.A.R.T. がないか、無効になっています</translation>
    </message>
    <message>
        <source>%1 has no S.M.A.R.T. interface</source>
        <translation>%1 には S.M.A.R.T. インターフェイスがありません</translation>
    </message>
    <message>
        <source>%1 does not pass S.M.A.R.T. commands on</source>
        <translation>%1 は S.M.A.R.T. コマンドを中継しません</translation>
    </message>
    <message>
        <source>%1 does not give its NVMe health log</source>
        <translation>%1 は NVMe ヘルスログを返しません</translation>
    </message>
    <message>
        <source>%1 may only be asked by an administrator</source>
        <translation>%1 に問い合わせできるのは管理者だけです</translation>
    </message>
    <message>
        <source>%1 is out of this process&apos;s reach</source>
        <translation>%1 はこのプロセスからアクセスできません</translation>
    </message>
    <message>
        <source>UDisks2 does not answer</source>
        <translation>UDisks2 が応答しません</translation>
    </message>
    <message>
        <source>UDisks2 does not answer for %1</source>
        <translation>UDisks2 が %1 について応答しません</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 が応答しません</translation>
    </message>
    <message>
        <source>UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)</source>
        <extracomment>%1 is the version of UDisks2</extracomment>
        <translation>UDisks2 %1 は NVMe ドライブの健康状態を読み取りません（バージョン 2.10 は読み取ります）</translation>
    </message>
    <message>
        <source>UDisks2 has no health figures of %1</source>
        <translation>UDisks2 に %1 の健康状態の値がありません</translation>
    </message>
    <message>
        <source>UDisks2 has no health verdict on %1</source>
        <translation>UDisks2 に %1 の健康状態の判定がありません</translation>
    </message>
    <message>
        <source>UDisks2 knows no drive behind %1</source>
        <translation>UDisks2 は %1 に対応するドライブを認識していません</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1, which gave its verdict without figures</source>
        <translation>%1 の ATA S.M.A.R.T.（判定のみで値はなし）</translation>
    </message>
    <message>
        <source>ATA S.M.A.R.T. of %1</source>
        <translation>%1 の ATA S.M.A.R.T.</translation>
    </message>
    <message>
        <source>NVMe health log of %1</source>
        <translation>%1 の NVMe ヘルスログ</translation>
    </message>
    <message>
        <source>UDisks2 for %1, read %2 min ago</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1 some minutes ago</extracomment>
        <translation>%1 の UDisks2 情報（%2 min 前に読み取り）</translation>
    </message>
    <message>
        <source>UDisks2 for %1</source>
        <extracomment>Where figures come from: UDisks2 has read disk %1</extracomment>
        <translation>%1 の UDisks2 情報</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Two sentences: how many disks answered, and why others did not</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>Two sentences, the first on one disk and the second on another</extracomment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>%1, and %2</source>
        <extracomment>Two sentences: why a disk gives no figures itself, and why the system&apos;s service gives none</extracomment>
        <translation>%1。また、%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 日</numerusform>
        </translation>
    </message>
    <message>
        <source>Failing</source>
        <extracomment>The drive&apos;s own verdict: it is going to break</extracomment>
        <translation>故障の兆候あり</translation>
    </message>
    <message>
        <source>Verified</source>
        <extracomment>The drive&apos;s own verdict: it finds itself sound</extracomment>
        <translation>検証済み</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message>
        <source>Hi&amp;story</source>
        <translation>履歴(&amp;S)</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>テキストとしてコピー</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown の表としてコピー</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>計測を保存…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV をエクスポート…</translation>
    </message>
</context>
<context>
    <name>HistoryFigures</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rate of the sequential write test</extracomment>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rate of the sequential read test</extracomment>
        <translation>読み取り</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <extracomment>%1 is the title of a run</extracomment>
        <translation>%1 を削除</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>この計測を削除</translation>
    </message>
</context>
<context>
    <name>HostCheck</name>
    <message>
        <source>Stopping, removing the files</source>
        <translation>停止しています。ファイルを削除中</translation>
    </message>
    <message>
        <source>The check could not be told as JSON.</source>
        <translation>検査の結果を JSON で出力できませんでした。</translation>
    </message>
</context>
<context>
    <name>HostFacts</name>
    <message>
        <source>Case-sensitive</source>
        <translation>大文字と小文字を区別する</translation>
    </message>
    <message>
        <source>Case-preserving</source>
        <translation>大文字と小文字を保持する</translation>
    </message>
    <message>
        <source>Sparse files</source>
        <translation>スパースファイル</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>ハードリンク</translation>
    </message>
    <message>
        <source>Symbolic links</source>
        <translation>シンボリックリンク</translation>
    </message>
    <message>
        <source>Extended attributes</source>
        <translation>拡張属性</translation>
    </message>
    <message>
        <source>Named streams</source>
        <translation>名前付きストリーム</translation>
    </message>
    <message>
        <source>Access control lists</source>
        <translation>アクセス制御リスト</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>クローン</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>ジャーナル</translation>
    </message>
    <message>
        <source>Journal active</source>
        <translation>ジャーナル有効</translation>
    </message>
    <message>
        <source>Sealed</source>
        <translation>封印済み</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>not known</source>
        <comment>whether a file system can do something</comment>
        <translation>不明</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>使用可能</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用済み</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>暗号化</translation>
    </message>
    <message>
        <source>Mounted at</source>
        <translation>マウント先</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>ブロックサイズ</translation>
    </message>
    <message>
        <source>Optimal transfer</source>
        <translation>最適な転送サイズ</translation>
    </message>
    <message>
        <source>Longest name</source>
        <translation>名前の最大長</translation>
    </message>
    <message>
        <source>Longest path</source>
        <translation>パスの最大長</translation>
    </message>
    <message>
        <source>Most links</source>
        <translation>リンクの最大数</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Attached by</source>
        <translation>接続方式</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>取得元</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>インターフェイス</translation>
    </message>
    <message>
        <source>(attention)</source>
        <translation>（注意）</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康状態</translation>
    </message>
    <message>
        <source>no S.M.A.R.T. figures: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>S.M.A.R.T. の値がありません: %1</translation>
    </message>
</context>
<context>
    <name>HostFiles</name>
    <message>
        <source>%1, which comes with the window, could not be started</source>
        <translation>ウィンドウ版に付属する %1 を起動できませんでした</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 が応答しません</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 はフォルダーです</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 は通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1 exists and holds no runs; --force would replace it</source>
        <translation>%1 はすでに存在し、計測を含んでいません。--force を付けると置き換えます</translation>
    </message>
    <message>
        <source>A figure of this run is beyond what a file can hold.</source>
        <translation>この計測の値の 1 つが、ファイルに保存できる範囲を超えています。</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 に書き込めませんでした: %2</translation>
    </message>
    <message>
        <source>The history could not be written.</source>
        <translation>履歴に書き込めませんでした。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1: a file or a folder, %2: what the system says about it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The result could not be written</source>
        <translation>結果を書き込めませんでした</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
    <message>
        <source>%1 is not in this sandbox, which has only some of the machine’s folders</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 はこのサンドボックスにありません。サンドボックスにあるのはコンピューターの一部のフォルダーだけです</translation>
    </message>
    <message>
        <source>%1 is the sandbox’s own; the machine’s folder of that name is hidden from it.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 はサンドボックス自身のものです。コンピューターの同名のフォルダーはサンドボックスから見えません。</translation>
    </message>
    <message>
        <source>Files of another run in this folder are in use and were not removed.</source>
        <translation>このフォルダーにある別の計測のファイルは使用中のため、削除しませんでした。</translation>
    </message>
    <message>
        <source>%1: the flush to the medium failed (%2); not all that was written may be there.</source>
        <extracomment>%1: a test, %2: what the system says.</extracomment>
        <translation>%1: メディアへのフラッシュに失敗しました（%2）。書き込んだ内容のすべてが届いていない可能性があります。</translation>
    </message>
    <message>
        <source>Preparation: the flush to the medium failed (%1); not all that was written may be there.</source>
        <extracomment>The preparation of the test file. %1: what the system says.</extracomment>
        <translation>準備: メディアへのフラッシュに失敗しました（%1）。書き込んだ内容のすべてが届いていない可能性があります。</translation>
    </message>
    <message>
        <source>The run file could not be written to your temporary folder.</source>
        <translation>計測ファイルを一時フォルダーに書き込めませんでした。</translation>
    </message>
    <message>
        <source>The run could not be added to the history.</source>
        <translation>計測を履歴に追加できませんでした。</translation>
    </message>
    <message>
        <source>%1 is larger than a run file can be (%2)</source>
        <translation>%1 は計測ファイルの上限サイズ（%2）を超えています</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>%1 を読み取れませんでした</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>standard input is larger than a run file can be (%1)</source>
        <translation>標準入力が計測ファイルの上限サイズ（%1）を超えています</translation>
    </message>
    <message>
        <source>standard input is not a run file: %1</source>
        <translation>標準入力は計測ファイルではありません: %1</translation>
    </message>
    <message>
        <source>%1 is not a run file: %2</source>
        <translation>%1 は計測ファイルではありません: %2</translation>
    </message>
    <message>
        <source>The picture could not be drawn: %1</source>
        <extracomment>%1: the reason.</extracomment>
        <translation>画像を描画できませんでした: %1</translation>
    </message>
    <message>
        <source>The picture could not be drawn, or not be written to your temporary folder.</source>
        <translation>画像を描画できなかったか、一時フォルダーに書き込めませんでした。</translation>
    </message>
</context>
<context>
    <name>HostHelp</name>
    <message>
        <source>Draw it in the dark colours</source>
        <translation>暗い配色で描画する</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.</source>
        <translation>計測ファイルは、1 件の計測について &quot;run --handoff&quot; が書き込むファイルです。画像は幅 1616 ピクセルの PNG
ファイルで、余白は透明です。画像のパスを出力します。ディスプレイは不要です。同じタイトルの画像は以前のものを置き換えます。画像は、セッションが終わるか、システムが一時フォルダーを空にするまで残ります。</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.</source>
        <translation>終了ステータス: 0 完了、1 ファイルを読み取れないか画像を作成できない、2 使い方の誤り。</translation>
    </message>
    <message>
        <source>Draw a picture of a run to share, or of several compared</source>
        <translation>共有する計測の画像、または複数の計測を比較した画像を描画する</translation>
    </message>
    <message>
        <source>How much to write and read back (default: all free space)</source>
        <translation>書き込んで読み戻す量（既定: すべての空き容量）</translation>
    </message>
    <message>
        <source>How much stays free in any case (default: 64MiB)</source>
        <translation>必ず残す空き容量（既定: 64MiB）</translation>
    </message>
    <message>
        <source>Samples across the range, in seconds: finds a false capacity, and
proves nothing when it finds none</source>
        <translation>範囲全体のサンプルを数秒で検査する。容量の偽装は見つかるが、見つからなくても問題がない証明にはならない</translation>
    </message>
    <message>
        <source>Read everything once more, S seconds later</source>
        <translation>S 秒後に、すべてをもう一度読み取る</translation>
    </message>
    <message>
        <source>Print one JSON object: the verdict, the sentence, and all that was found</source>
        <translation>判定、結論の文、見つかったすべての内容を 1 つの JSON オブジェクトとして出力する</translation>
    </message>
    <message>
        <source>Writes files that differ in every block into a hidden folder inside FOLDER, reads them back past the system&apos;s
cache, compares all of it, and removes them, also after Ctrl+C. No file of yours is touched; but on a device
with a false capacity every write beyond its real size may destroy what lies there, as any use of it would.
--quick writes samples only. Files of a killed check are removed by the next run or check in FOLDER.</source>
        <translation>FOLDER 内の隠しフォルダーに、どのブロックも異なるファイルを書き込み、システムのキャッシュを通さずに読み戻し、すべてを比較してから削除します。Ctrl+C の後でも削除します。既存のファイルには触れませんが、容量が偽装されたデバイスでは、実容量を超える書き込みはすべて、通常の使用と同じく、そこにある内容を破壊することがあります。--quick はサンプルだけを書き込みます。強制終了された検査のファイルは、FOLDER での次の計測または検査が削除します。</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024).</source>
        <translation>BYTES は数字だけ、または K、M、G、T を付けた数字です（KiB、MiB、GiB、TiB: 1024 倍ごと）。</translation>
    </message>
    <message>
        <source>Exit status: 0 nothing wrong was found, 1 failed, 2 wrong usage, 3 defects were found, 130 stopped by a signal;
what had been found until then is printed.</source>
        <translation>終了ステータス: 0 問題は見つからなかった、1 失敗、2 使い方の誤り、3 欠陥が見つかった、130 シグナルによる停止。停止までに見つかった内容は出力されます。</translation>
    </message>
    <message>
        <source>Check whether a volume is as large as it says and keeps what it is given</source>
        <translation>ボリュームが表示どおりの大きさで、書き込んだ内容を保持するかどうかを検査する</translation>
    </message>
    <message>
        <source>As text (default), markdown, csv or json</source>
        <translation>text（既定）、markdown、csv、json のいずれかの形式</translation>
    </message>
    <message>
        <source>Let --output replace a file of any content</source>
        <translation>--output が任意の内容のファイルを置き換えることを許可する</translation>
    </message>
    <message>
        <source>Print the facts as one JSON object</source>
        <translation>情報を 1 つの JSON オブジェクトとして出力する</translation>
    </message>
    <message>
        <source>Print the list as one JSON array</source>
        <translation>一覧を 1 つの JSON 配列として出力する</translation>
    </message>
    <message>
        <source>Nothing is written anywhere. What the system does not tell reads &quot;--&quot; or &quot;not known&quot;, and is left out of the JSON
object.</source>
        <translation>どこにも書き込みません。システムが知らせない項目は &quot;--&quot; または「不明」と表示し、JSON
オブジェクトでは省きます。</translation>
    </message>
    <message>
        <source>Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.</source>
        <translation>各ファイルシステムを、最も短いマウントポイントで 1 回だけ表示します。システムやそのパッケージ、コンテナーが自身のためにマウントしたものは省きます。時間内に応答しないサーバーの容量は表示されません。</translation>
    </message>
    <message>
        <source>The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by &quot;facts&quot;.</source>
        <translation>ドライブは参照するだけです。スリープ中のドライブを起こすことも、機能を有効にすることもありません。健康状態の取得元、または取得できない理由は &quot;facts&quot; で確認できます。</translation>
    </message>
    <message>
        <source>Show what holds FOLDER: volume, file system, drive and its health</source>
        <translation>FOLDER があるボリューム、ファイルシステム、ドライブとその健康状態を表示する</translation>
    </message>
    <message>
        <source>List the mounted volumes</source>
        <translation>マウントされているボリュームの一覧を表示する</translation>
    </message>
    <message>
        <source>Print the health of the drive that holds FOLDER</source>
        <translation>FOLDER があるドライブの健康状態を出力する</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a sentence without its full stop.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1: how a program is called, as &quot;tarnwick-host run [OPTION]… FOLDER&quot;.</extracomment>
        <translation>使い方: %1</translation>
    </message>
    <message>
        <source>Show this text</source>
        <translation>このヘルプを表示する</translation>
    </message>
    <message>
        <source>Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.</source>
        <translation>ターミナル版の Ondel Tarnwick です。ディスクに書き込んで速度を測り、書き込んだものは削除します。</translation>
    </message>
    <message>
        <source>Show this text, or behind a command that command&apos;s options</source>
        <translation>このヘルプを表示する。コマンドの後ではそのコマンドのオプションを表示する</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>バージョンを表示する</translation>
    </message>
    <message>
        <source>The file that &quot;export&quot; writes</source>
        <translation>&quot;export&quot; が書き込むファイル</translation>
    </message>
    <message>
        <source>Let &quot;delete&quot; delete all runs</source>
        <translation>&quot;delete&quot; がすべての計測を削除することを許可する</translation>
    </message>
    <message>
        <source>ACTION is one of</source>
        <translation>ACTION は次のいずれかです</translation>
    </message>
    <message>
        <source>a line for each run, newest first, which begins with its name (default)</source>
        <translation>計測ごとに 1 行、新しい順。行は計測の名前で始まる（既定）</translation>
    </message>
    <message>
        <source>print runs as &quot;show&quot; does, in the form of --format</source>
        <translation>&quot;show&quot; と同じように、--format の形式で計測を出力する</translation>
    </message>
    <message>
        <source>write runs to the FILE of --output, in the form of --format or of the FILE&apos;s name: .csv, .json, .md,
.txt, or .tarnwickrun for one run</source>
        <translation>--output の FILE に計測を書き込む。形式は --format または FILE の名前に従う: .csv、.json、.md、.txt、計測が 1 件なら .tarnwickrun も可</translation>
    </message>
    <message>
        <source>delete runs, without a question and for good</source>
        <translation>確認なしに計測を完全に削除する</translation>
    </message>
    <message>
        <source>A RUN is named as the list has it, or by four or more characters that begin its id. Without one, all runs are meant;
&quot;delete&quot; then needs --all. A window that is open follows as soon as you come back to it. --output replaces an existing
file only if it is empty or holds runs; with --force any other file too.</source>
        <translation>RUN は、一覧にある名前、または id の先頭の 4 文字以上で指定します。指定しない場合はすべての計測が対象になり、&quot;delete&quot; には --all が必要です。開いているウィンドウには、そのウィンドウに戻るとすぐに反映されます。--output が既存のファイルを置き換えるのは、空か、計測を含む場合だけです。--force を付けると、ほかのファイルも置き換えます。</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.</source>
        <translation>終了ステータス: 0 完了、1 そのような計測がないか失敗、2 使い方の誤り。</translation>
    </message>
    <message>
        <source>List, show, export or delete the runs that the window keeps</source>
        <translation>ウィンドウが保存している計測を一覧表示、表示、エクスポート、削除する</translation>
    </message>
    <message>
        <source>BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Defaults are those of the window, so that its figures and these can be compared, but for the
blocks of the sequential tests: the window takes the &quot;Optimal transfer&quot; that &quot;facts&quot; shows.</source>
        <translation>BYTES は数字だけ、または K、M、G、T を付けた数字です（KiB、MiB、GiB、TiB: 1024 倍ごと）。ブロックは 4096
バイトのページ単位に切り上げられます。既定値はウィンドウと同じなので、測定値を互いに比較できます。ただし、シーケンシャルテストのブロックは異なり、ウィンドウは &quot;facts&quot; が示す「最適な転送サイズ」を使います。</translation>
    </message>
    <message>
        <source>Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start; files that are still in use stay, after a second&apos;s wait.</source>
        <translation>すべて FOLDER 内の隠しフォルダーに書き込み、最後に削除します。Ctrl+C の後でも削除します。強制終了された計測が
FOLDER に残したファイルは開始前に削除します。まだ使用中のファイルは、1 秒待ってもそのままであれば残します。</translation>
    </message>
    <message>
        <source>The files of --handoff and --card stay until your session ends, or until the system empties its temporary folder.
--output replaces an existing file only if it is empty or holds runs (a run file, or what &quot;show --format&quot; and
&quot;history export&quot; write as json or csv); with --force any other file too. A window that is open shows a run that
--keep adds as soon as you come back to it. When something cannot be written, the figures are printed all the same
and the run counts as failed.</source>
        <translation>--handoff と --card のファイルは、セッションが終わるか、システムが一時フォルダーを空にするまで残ります。--output が既存のファイルを置き換えるのは、空か、計測を含む場合だけです（計測ファイル、または
&quot;show --format&quot; や &quot;history export&quot; が json か csv で書き込んだもの）。--force を付けると、ほかのファイルも置き換えます。開いているウィンドウは、そのウィンドウに戻るとすぐに、--keep が追加した計測を表示します。何かを書き込めない場合でも測定値は出力されますが、計測は失敗とみなされます。</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.</source>
        <translation>終了ステータス: 0 完了、1 失敗、2 使い方の誤り、130 シグナルによる停止。</translation>
    </message>
    <message>
        <source>Measure the file system that holds FOLDER</source>
        <translation>FOLDER があるファイルシステムを計測する</translation>
    </message>
    <message>
        <source>Tests to run, always in this order: sequentialWrite, sequentialRead,
randomRead, randomWrite, fileOps (default: all)</source>
        <translation>実行するテスト。順序は常に次のとおり: sequentialWrite、sequentialRead、randomRead、randomWrite、fileOps（既定: すべて）</translation>
    </message>
    <message>
        <source>Size of the data file, or fill the disk (default: 5GiB)</source>
        <translation>データファイルのサイズ。fill はディスクをいっぱいにする（既定: 5GiB）</translation>
    </message>
    <message>
        <source>What --size fill leaves free (default: 1GiB)</source>
        <translation>--size fill で残す空き容量（既定: 1GiB）</translation>
    </message>
    <message>
        <source>Bytes per call, sequential write (default: 1MiB)</source>
        <translation>シーケンシャル書き込みの呼び出しごとのバイト数（既定: 1MiB）</translation>
    </message>
    <message>
        <source>Bytes per call, sequential read (default: 1MiB)</source>
        <translation>シーケンシャル読み取りの呼び出しごとのバイト数（既定: 1MiB）</translation>
    </message>
    <message>
        <source>Bytes per random operation (default: 4KiB)</source>
        <translation>ランダム操作ごとのバイト数（既定: 4KiB）</translation>
    </message>
    <message>
        <source>Operations in each random test (default: 10000)</source>
        <translation>各ランダムテストの操作回数（既定: 10000）</translation>
    </message>
    <message>
        <source>Files in the file-operations test (default: 1000)</source>
        <translation>ファイル操作テストのファイル数（既定: 1000）</translation>
    </message>
    <message>
        <source>Let the system cache the data file, as ordinary programs do</source>
        <translation>通常のプログラムと同じように、システムがデータファイルをキャッシュすることを許可する</translation>
    </message>
    <message>
        <source>Least seconds between two samples (default: 0.02)</source>
        <translation>2 つのサンプルの間の最短の秒数（既定: 0.02）</translation>
    </message>
    <message>
        <source>Print one JSON object: the plan, every figure, every sample, date,
folder, volume, file system, drive, kernel, and under &quot;evidence&quot; and
&quot;remarks&quot; what was observed and what it says</source>
        <translation>1 つの JSON オブジェクトを出力する: 計画、すべての測定値とサンプル、日時、フォルダー、ボリューム、ファイルシステム、ドライブ、カーネル、さらに
&quot;evidence&quot; と &quot;remarks&quot; に、観測した内容とその意味</translation>
    </message>
    <message>
        <source>Write a run file there, for the window, for &quot;show&quot; and for others</source>
        <translation>そこに計測ファイルを書き込む。ウィンドウ、&quot;show&quot;、ほかの人が利用できる</translation>
    </message>
    <message>
        <source>Add the run to the window&apos;s history</source>
        <translation>計測をウィンドウの履歴に追加する</translation>
    </message>
    <message>
        <source>Write a run file for the window and for &quot;show&quot;, and print its path
as the last line; with --json: as &quot;handoffFile&quot; in the object</source>
        <translation>ウィンドウと &quot;show&quot; 用の計測ファイルを書き込み、最後の行にパスを出力する。--json と併用した場合は、オブジェクトの &quot;handoffFile&quot; になる</translation>
    </message>
    <message>
        <source>Draw a picture of the run to share, in light or dark colours, and
print its path as the last line; with --json: as &quot;cardFile&quot;</source>
        <translation>共有する計測の画像を明るい配色または暗い配色で描画し、最後の行にパスを出力する。--json と併用した場合は &quot;cardFile&quot; になる</translation>
    </message>
    <message>
        <source>A run file is what &quot;run --handoff&quot; and &quot;run --output&quot; write, for one run. The window&apos;s history (history.json) and
the output of &quot;show --format json&quot; have several. &quot;-&quot; is standard input.</source>
        <translation>計測ファイルは、1 件の計測について &quot;run --handoff&quot; や &quot;run --output&quot; が書き込むファイルです。ウィンドウの履歴 (history.json) と &quot;show --format json&quot; の出力には複数の計測が含まれます。&quot;-&quot; は標準入力です。</translation>
    </message>
    <message>
        <source>As text, bars compare the figures of several runs: the largest of each kind fills its track, and &quot;--&quot; stands where a
run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV has a line for each run, with
plain numbers for spreadsheets and scripts. JSON is a list of run files&apos; contents.</source>
        <translation>テキスト形式では、複数の計測の測定値を棒で比較します。種類ごとに最大の値が棒の幅いっぱいになり、値がない計測には &quot;--&quot; を表示します。行はターミナルの幅、または 80 桁に収まります。Markdown の表はフォーラム向けです。CSV は計測ごとに 1 行で、表計算やスクリプト向けの単純な数値です。JSON は計測ファイルの内容のリストです。</translation>
    </message>
    <message>
        <source>A file that cannot be shown gets a line on standard error, and the others are shown.</source>
        <translation>表示できないファイルについては標準エラー出力に 1 行を出力し、ほかのファイルは表示します。</translation>
    </message>
    <message>
        <source>Exit status: 0 all were shown, 1 not all, 2 wrong usage.</source>
        <translation>終了ステータス: 0 すべて表示した、1 一部を表示できなかった、2 使い方の誤り。</translation>
    </message>
    <message>
        <source>Show runs from their run files, and several side by side</source>
        <translation>計測ファイルから計測を表示し、複数の場合は並べて表示する</translation>
    </message>
</context>
<context>
    <name>HostHistory</name>
    <message>
        <source>there is no run %1 in the history</source>
        <translation>履歴に計測 %1 はありません</translation>
    </message>
    <message>
        <source>%1 stands for several runs</source>
        <translation>%1 は複数の計測に当てはまります</translation>
    </message>
    <message>
        <source>Run</source>
        <extracomment>A benchmark run.</extracomment>
        <translation>計測</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
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
        <translation>開始中</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>%1: the time until the end, as &quot;2 min&quot;.</extracomment>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>Stopping, removing the test files</source>
        <translation>停止しています。テストファイルを削除中</translation>
    </message>
    <message>
        <source>Preparing the test file, %1 s</source>
        <extracomment>%1: the seconds since the start.</extracomment>
        <translation>テストファイルを準備中、%1 s</translation>
    </message>
    <message>
        <source>Starting, %1 s</source>
        <translation>開始中、%1 s</translation>
    </message>
</context>
<context>
    <name>HostResults</name>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Sustained</source>
        <translation>持続</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>ピーク</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Overall</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作回数</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Worst</source>
        <extracomment>The slowest operation; &quot;p99&quot; is the time that 99 of 100 operations stay below.</extracomment>
        <translation>最大</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>What the file-operations test does with files; &quot;Stat&quot; asks for a file&apos;s size and dates.</extracomment>
        <translation>作成</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>属性取得</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前変更</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>HostUsage</name>
    <message>
        <source>a RUNFILE to draw is missing</source>
        <translation>描画する RUNFILE が指定されていません</translation>
    </message>
    <message>
        <source>%1 is a year at most</source>
        <translation>%1 は最長で 1 年です</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>オプション %1 はありません</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 は値を取りません</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <translation>%1 には値が必要です: %2</translation>
    </message>
    <message>
        <source>%1 goes with %2 only</source>
        <extracomment>Two options or commands of the program.</extracomment>
        <translation>%1 は %2 とだけ併用できます</translation>
    </message>
    <message>
        <source>%1 needs a whole number from %2 to %3, not %4</source>
        <translation>%1 には %2 から %3 までの整数が必要です（%4 は使えません）</translation>
    </message>
    <message>
        <source>%1 needs a number of bytes, such as 4096, 64K or 5GiB, from %2 to %3, not %4</source>
        <translation>%1 には 4096、64K、5GiB のようなバイト数が %2 から %3 までの範囲で必要です（%4 は使えません）</translation>
    </message>
    <message>
        <source>%1 needs a number of seconds, 0 or more, not %2</source>
        <translation>%1 には 0 以上の秒数が必要です（%2 は使えません）</translation>
    </message>
    <message>
        <source>a FOLDER is missing</source>
        <translation>FOLDER が指定されていません</translation>
    </message>
    <message>
        <source>one FOLDER at a time</source>
        <translation>FOLDER は一度に 1 つだけ指定できます</translation>
    </message>
    <message>
        <source>%1 is text, markdown, csv or json, not %2</source>
        <translation>%1 は text、markdown、csv、json のいずれかです（%2 は使えません）</translation>
    </message>
    <message>
        <source>%1 needs the name of a file</source>
        <translation>%1 にはファイル名が必要です</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 はオペランドを取りません</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>%1 には %2 が必要です</translation>
    </message>
    <message>
        <source>a run file holds one run, not %1</source>
        <translation>計測ファイルに保存できる計測は 1 件です（%1 件は保存できません）</translation>
    </message>
    <message>
        <source>%1 is needed where the FILE&apos;s name does not end in .tarnwickrun, .csv, .json, .md or .txt</source>
        <translation>FILE の名前が .tarnwickrun、.csv、.json、.md、.txt のいずれでも終わらない場合は %1 が必要です</translation>
    </message>
    <message>
        <source>%1 needs either RUNs or %2</source>
        <translation>%1 には RUN か %2 のどちらかが必要です</translation>
    </message>
    <message>
        <source>%1 goes with %2 and %3 only</source>
        <translation>%1 は %2 および %3 とだけ併用できます</translation>
    </message>
    <message>
        <source>%1 can list, show, export and delete, not %2</source>
        <translation>%1 で使えるのは list、show、export、delete です（%2 は使えません）</translation>
    </message>
    <message>
        <source>a command is missing; see %1</source>
        <translation>コマンドが指定されていません。%1 を参照してください</translation>
    </message>
    <message>
        <source>there is no command %1; see %2</source>
        <translation>コマンド %1 はありません。%2 を参照してください</translation>
    </message>
    <message>
        <source>a FOLDER to measure is missing</source>
        <translation>計測する FOLDER が指定されていません</translation>
    </message>
    <message>
        <source>a FOLDER to check is missing</source>
        <translation>検査する FOLDER が指定されていません</translation>
    </message>
    <message>
        <source>one FOLDER at a time, not also %1</source>
        <translation>FOLDER は一度に 1 つだけ指定できます（%1 は追加できません）</translation>
    </message>
    <message>
        <source>the FOLDER&apos;s name is empty</source>
        <translation>FOLDER の名前が空です</translation>
    </message>
    <message>
        <source>%1: there is no test %2, only %3</source>
        <translation>%1: テスト %2 はありません。使えるのは %3 です</translation>
    </message>
    <message>
        <source>%1 is light or dark, not %2</source>
        <translation>%1 は light か dark です（%2 は使えません）</translation>
    </message>
    <message>
        <source>a FILE to show is missing</source>
        <translation>表示する FILE が指定されていません</translation>
    </message>
</context>
<context>
    <name>IdleCard</name>
    <message>
        <source>Ready to benchmark</source>
        <translation>ベンチマークを実行できます</translation>
    </message>
    <message>
        <source>Choose a volume to begin</source>
        <translation>はじめにボリュームを選択してください</translation>
    </message>
    <message>
        <source>Adjust tests and settings on the left, then press Run Benchmark.</source>
        <translation>左側でテストと設定を調整し、［ベンチマークを実行］を押してください。</translation>
    </message>
    <message>
        <source>Pick a mounted volume or folder from the toolbar.</source>
        <translation>ツールバーからマウント済みのボリュームまたはフォルダーを選択してください。</translation>
    </message>
</context>
<context>
    <name>InfoRow</name>
    <message>
        <source>Warning</source>
        <extracomment>Spoken: the figure is a concern</extracomment>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>LiveCheckText</name>
    <message>
        <source>All free space</source>
        <translation>すべての空き容量</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether everything is read a second time</extracomment>
        <translation>しない</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>%1 後</translation>
    </message>
    <message>
        <source>Samples all over the chosen space are written, read back and removed. It takes seconds, finds most false capacities, and proves nothing if it finds none.</source>
        <translation>選択した領域の全体にわたってサンプルを書き込み、読み戻して削除します。数秒で終わり、容量の偽装の大半が見つかりますが、見つからなくても問題がない証明にはなりません。</translation>
    </message>
    <message>
        <source>%1 are written, read back, compared and removed. Your files are not touched.</source>
        <translation>%1 を書き込み、読み戻して比較し、削除します。既存のファイルには触れません。</translation>
    </message>
    <message>
        <source>All free space is written, read back, compared and removed. Your files are not touched.</source>
        <translation>すべての空き容量に書き込み、読み戻して比較し、削除します。既存のファイルには触れません。</translation>
    </message>
    <message>
        <source>All free space, about %1, is written, read back, compared and removed. On a large volume that takes hours; meanwhile the volume is full for other programs. Your files are not touched.</source>
        <translation>すべての空き容量（約 %1）に書き込み、読み戻して比較し、削除します。大容量のボリュームでは数時間かかり、その間、ほかのプログラムからはボリュームがいっぱいに見えます。既存のファイルには触れません。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 % of the check</source>
        <translation>検査の %1%</translation>
    </message>
    <message>
        <source>in one part</source>
        <translation>1 区間</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>%1 区間</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <extracomment>%1 and %2 are places on the volume, %3 what was found between them</extracomment>
        <translation>%1～%2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
        <extracomment>When the check began, and how long it took</extracomment>
        <translation>検査日時</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>テキストをコピーしました</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>テキストをコピーできませんでした。</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>ファイルを保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>「%1」として保存しました</translation>
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
        <translation>%1 %2、%3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <extracomment>The temperature of the drive</extracomment>
        <translation>ドライブ %1 °C</translation>
    </message>
</context>
<context>
    <name>LiveRunText</name>
    <message>
        <source>done</source>
        <extracomment>Of a test</extracomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>Of a test</extracomment>
        <translation>実行中</translation>
    </message>
    <message>
        <source>to come</source>
        <extracomment>Of a test that has not begun</extracomment>
        <translation>未実行</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 what it does (done, running, to come), %3 its rate</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2、%3</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>残り数秒</translation>
    </message>
    <message>
        <source>A few seconds left of this test</source>
        <translation>このテストは残り数秒</translation>
    </message>
    <message numerus="yes">
        <source>About %n s left</source>
        <translation>
            <numerusform>残り約 %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n s left of this test</source>
        <translation>
            <numerusform>このテストは残り約 %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left</source>
        <translation>
            <numerusform>残り約 %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n min left of this test</source>
        <translation>
            <numerusform>このテストは残り約 %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left</source>
        <translation>
            <numerusform>残り約 %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n h left of this test</source>
        <translation>
            <numerusform>このテストは残り約 %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 operations</source>
        <translation>
            <numerusform>%1 / %2 回の操作</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Sizes: how much is done of how much</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>準備中…</translation>
    </message>
</context>
<context>
    <name>LiveTests</name>
    <message>
        <source>Whole run</source>
        <translation>計測全体</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that is not known</extracomment>
        <translation>ボリューム</translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation>メニューバー</translation>
    </message>
</context>
<context>
    <name>PreviousRunsHead</name>
    <message>
        <source>Select runs to compare</source>
        <translation>比較する計測を選択</translation>
    </message>
    <message>
        <source>Previous runs</source>
        <translation>これまでの計測</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Button: begins to choose runs</extracomment>
        <translation>比較</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Button: deletes all saved runs, after a question</extracomment>
        <translation>消去</translation>
    </message>
    <message numerus="yes">
        <source>Compare %n</source>
        <extracomment>Button: compares so many chosen runs</extracomment>
        <translation>
            <numerusform>%n 件を比較</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>PreviousRunsSection</name>
    <message>
        <source>current run</source>
        <translation>現在の計測</translation>
    </message>
    <message>
        <source>Delete all saved runs?</source>
        <translation>保存した計測をすべて削除しますか？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>すべて削除</translation>
    </message>
</context>
<context>
    <name>RemarkText</name>
    <message>
        <source>At most %1 of what was written reached the disk during the test.</source>
        <translation>テスト中にディスクへ届いたのは、書き込んだ内容の最大 %1 です。</translation>
    </message>
    <message>
        <source>%1 of what was written reached the disk during the test.</source>
        <translation>テスト中にディスクへ届いたのは、書き込んだ内容の %1 です。</translation>
    </message>
    <message>
        <source>At most %1 of what was read came from the disk.</source>
        <translation>ディスクから読み取られたのは、読み取った内容の最大 %1 です。</translation>
    </message>
    <message>
        <source>%1 of what was read came from the disk.</source>
        <translation>ディスクから読み取られたのは、読み取った内容の %1 です。</translation>
    </message>
    <message>
        <source>What was written could not all be flushed to the disk: %1.</source>
        <translation>書き込んだ内容の一部をディスクへフラッシュできませんでした: %1。</translation>
    </message>
    <message>
        <source>The test file could not be flushed to the disk: %1.</source>
        <translation>テストファイルをディスクへフラッシュできませんでした: %1。</translation>
    </message>
    <message>
        <source>%1 for the first %2, then %3.</source>
        <translation>最初の %2 は %1、その後は %3 でした。</translation>
    </message>
    <message>
        <source>The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.</source>
        <translation>ドライブは %2 後に %1 に達し（上限 %3）、それ以降の速度は %4 低下しました。</translation>
    </message>
    <message>
        <source>One pause over 1 s: %1.</source>
        <translation>1 s を超える停止が 1 回ありました: %1。</translation>
    </message>
    <message numerus="yes">
        <source>%1 pauses over 1 s, the longest %2.</source>
        <translation>
            <numerusform>1 s を超える停止が %1 回あり、最長は %2 でした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Others moved %1 on the same disk during the test.</source>
        <translation>テスト中に、ほかのプログラムが同じディスクで %1 を転送しました。</translation>
    </message>
    <message>
        <source>The drive’s %1 link runs at %2; the drive could do %3.</source>
        <translation>ドライブの %1 リンクは %2 で動作していますが、ドライブは %3 に対応しています。</translation>
    </message>
    <message>
        <source>The partition begins %1 into a physical block of %2.</source>
        <translation>パーティションが、%2 の物理ブロックの先頭から %1 ずれた位置で始まっています。</translation>
    </message>
    <message>
        <source>Only %1 of the volume was free.</source>
        <translation>ボリュームの空きは %1 だけでした。</translation>
    </message>
    <message>
        <source>The test’s %1 may fit into a cache of %2.</source>
        <translation>テストの %1 は %2 のキャッシュに収まる可能性があります。</translation>
    </message>
    <message>
        <source>The machine ran on battery.</source>
        <translation>コンピューターはバッテリーで動作していました。</translation>
    </message>
    <message>
        <source>The processor was set to save power.</source>
        <translation>プロセッサーは省電力に設定されていました。</translation>
    </message>
    <message>
        <source>The machine ran on battery, its processor set to save power.</source>
        <translation>コンピューターはバッテリーで動作し、プロセッサーは省電力に設定されていました。</translation>
    </message>
    <message>
        <source>The file system writes changes to new places and checksums data.</source>
        <translation>このファイルシステムは変更を新しい場所に書き込み、データのチェックサムを計算します。</translation>
    </message>
    <message>
        <source>The file system writes changes to new places.</source>
        <translation>このファイルシステムは変更を新しい場所に書き込みます。</translation>
    </message>
    <message>
        <source>Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.</source>
        <translation>［キャッシュをバイパス］をオンにしてください。すでにオンの場合は、コンピューターのメモリーより大きいサイズを選んでください。</translation>
    </message>
    <message>
        <source>Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.</source>
        <translation>このドライブにデータを預ける前に、ドライブの S.M.A.R.T. の状態とシステムのログを確認してください。</translation>
    </message>
    <message>
        <source>Data went through a cache although the system was asked to bypass it.</source>
        <translation>システムにキャッシュのバイパスを要求しましたが、データはキャッシュを経由しました。</translation>
    </message>
    <message>
        <source>Choose a size larger than the machine’s memory, or test the disk below through another file system.</source>
        <translation>コンピューターのメモリーより大きいサイズを選ぶか、背後のディスクを別のファイルシステムでテストしてください。</translation>
    </message>
    <message>
        <source>Expect the lower rate where more than that is moved at once.</source>
        <translation>一度にこれより多くを転送する場合は、低いほうの速度になると考えてください。</translation>
    </message>
    <message>
        <source>Give the drive more air or a heat sink, and run again once it is cool.</source>
        <translation>ドライブの風通しをよくするかヒートシンクを付け、冷えてからもう一度計測してください。</translation>
    </message>
    <message>
        <source>Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.</source>
        <translation>もう一度計測してください。再び停止が起きる場合は、ドライブの S.M.A.R.T. の状態とケーブルを確認してください。</translation>
    </message>
    <message>
        <source>Run again while nothing else uses the disk.</source>
        <translation>ほかにディスクを使うものがないときに、もう一度計測してください。</translation>
    </message>
    <message>
        <source>Try another port, slot or cable.</source>
        <translation>別のポート、スロット、またはケーブルを試してください。</translation>
    </message>
    <message>
        <source>Make the partition anew, beginning at a multiple of 1 MiB. That erases it.</source>
        <translation>1 MiB の倍数の位置から始まるようにパーティションを作り直してください。中の内容は消去されます。</translation>
    </message>
    <message>
        <source>Free some space: many drives and file systems slow down when full.</source>
        <translation>空き容量を増やしてください。多くのドライブやファイルシステムは、いっぱいになると遅くなります。</translation>
    </message>
    <message>
        <source>Choose a larger size, and switch on Bypass cache.</source>
        <translation>より大きいサイズを選び、［キャッシュをバイパス］をオンにしてください。</translation>
    </message>
    <message>
        <source>Run again on mains power, with power saving off.</source>
        <translation>電源につなぎ、省電力をオフにして、もう一度計測してください。</translation>
    </message>
    <message>
        <source>The disk behind this volume cannot be seen, so nothing shows what it did itself.</source>
        <translation>このボリュームの背後にあるディスクを特定できないため、ディスク自体の動作は分かりません。</translation>
    </message>
    <message>
        <source>This volume keeps its files in memory; no disk was measured.</source>
        <translation>このボリュームはファイルをメモリーに置いています。ディスクは計測されていません。</translation>
    </message>
    <message>
        <source>Choose a folder on a disk.</source>
        <translation>ディスク上のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>This volume is a file on another volume.</source>
        <translation>このボリュームは、別のボリューム上のファイルです。</translation>
    </message>
    <message>
        <source>To measure that volume itself, choose a folder on it.</source>
        <translation>そのボリューム自体を計測するには、その上のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The disk is one of a virtual machine, whose host may cache it.</source>
        <translation>このディスクは仮想マシンのもので、ホストがキャッシュしている可能性があります。</translation>
    </message>
    <message>
        <source>The file system compresses. The test’s data does not, so other files may be faster.</source>
        <translation>このファイルシステムは圧縮を行います。テストのデータは圧縮できないため、ほかのファイルのほうが速いことがあります。</translation>
    </message>
    <message>
        <source>The file system writes data twice, to its journal first.</source>
        <translation>このファイルシステムはデータを 2 回、まずジャーナルに書き込みます。</translation>
    </message>
    <message>
        <source>This folder was reached through the desktop’s portal, a program that is part of the figures.</source>
        <translation>このフォルダーにはデスクトップのポータル経由でアクセスしたため、測定値にはこのプログラムの処理も含まれます。</translation>
    </message>
    <message>
        <source>Allow the sandbox to use the folder itself, and choose it again.</source>
        <translation>サンドボックスがフォルダー自体を使うことを許可し、もう一度選んでください。</translation>
    </message>
    <message>
        <source>Invalid</source>
        <extracomment>The weight of a remark: the figure is not that of the disk</extracomment>
        <translation>無効</translation>
    </message>
    <message>
        <source>Caution</source>
        <extracomment>The weight of a remark: the figure may not be what it seems</extracomment>
        <translation>注意</translation>
    </message>
    <message>
        <source>Note</source>
        <extracomment>The weight of a remark: something to know</extracomment>
        <translation>参考</translation>
    </message>
</context>
<context>
    <name>ReportFooter</name>
    <message>
        <source>Disk speed &amp; volume analyzer</source>
        <translation>ディスク速度・ボリューム分析ツール</translation>
    </message>
    <message>
        <source>Scan to benchmark your own</source>
        <translation>スキャンして自分のディスクを計測</translation>
    </message>
</context>
<context>
    <name>ReportFormPage</name>
    <message>
        <source>Kind of report</source>
        <translation>レポートの種類</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>バグ</translation>
    </message>
    <message>
        <source>Feature request</source>
        <translation>機能の要望</translation>
    </message>
    <message>
        <source>Summary — a one-line description</source>
        <translation>概要（1 行での説明）</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>What would you like %1 to do?</source>
        <translation>%1 にどのような機能をお望みですか？</translation>
    </message>
    <message>
        <source>What happened? Steps to reproduce, and what you expected.</source>
        <translation>何が起きましたか？再現手順と、期待した結果をお書きください。</translation>
    </message>
    <message>
        <source>Email — optional, if you’d like us to get back to you</source>
        <translation>メールアドレス（任意、返信をご希望の場合）</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <extracomment>%1 is the program, %2 its version, %3 the system, %4 the machine</extracomment>
        <translation>%1 %2 · %3 · %4 が添付されます。</translation>
    </message>
</context>
<context>
    <name>ReportImageText</name>
    <message>
        <source>Ondel Tarnwick — Comparison</source>
        <translation>Ondel Tarnwick — 比較</translation>
    </message>
</context>
<context>
    <name>ReportProblemView</name>
    <message>
        <source>Thank You</source>
        <translation>ありがとうございます</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>問題を報告</translation>
    </message>
    <message>
        <source>Your report has been filed. Thanks for helping make %1 better.</source>
        <translation>レポートを受け付けました。%1 の改善にご協力いただきありがとうございます。</translation>
    </message>
    <message>
        <source>Report on the web:</source>
        <translation>ウェブで報告:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>RunButton</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>ベンチマークを実行</translation>
    </message>
</context>
<context>
    <name>RunChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>スループットの推移</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>網掛け: 各テストの最後の 3 分の 1。その中央値が持続速度です。三角形: ピーク速度と最低速度。</translation>
    </message>
</context>
<context>
    <name>RunExport</name>
    <message>
        <source>Run</source>
        <translation>計測</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>%1 (invalid)</source>
        <translation>%1（無効）</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>注記</translation>
    </message>
</context>
<context>
    <name>RunExportsText</name>
    <message numerus="yes">
        <source>Ondel Tarnwick — %n runs</source>
        <translation>
            <numerusform>Ondel Tarnwick — %n 件の計測</numerusform>
        </translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>テキストをコピーしました</translation>
    </message>
    <message>
        <source>Table copied</source>
        <translation>表をコピーしました</translation>
    </message>
    <message>
        <source>The text couldn&apos;t be copied.</source>
        <translation>テキストをコピーできませんでした。</translation>
    </message>
    <message>
        <source>Lists of runs</source>
        <translation>計測の一覧</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick の計測</translation>
    </message>
    <message>
        <source>CSV tables</source>
        <translation>CSV の表</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be saved: %1</source>
        <translation>ファイルを保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>「%1」として保存しました</translation>
    </message>
</context>
<context>
    <name>RunFactsText</name>
    <message>
        <source>Not the disk’s figure: %1</source>
        <extracomment>Names of tests follow</extracomment>
        <translation>ディスクの測定値ではない: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>ディスクの測定値ではない: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>%1 ランダム読み取り</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <extracomment>%1 is the size of a block, as 4 KiB</extracomment>
        <translation>%1 ランダム書き込み</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>ファイル操作</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <extracomment>The size of the blocks that were read and written</extracomment>
        <translation>読み取り/書き込み</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>The size of the blocks that were written</extracomment>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>The size of the blocks that were read</extracomment>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Random</source>
        <extracomment>The size of the blocks that were read and written at random</extracomment>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>空き</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>キャッシュ</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <extracomment>The system&apos;s cache was</extracomment>
        <translation>バイパス</translation>
    </message>
    <message>
        <source>Cached</source>
        <extracomment>Reads and writes went through the system&apos;s cache</extracomment>
        <translation>キャッシュあり</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Figures copied</source>
        <translation>測定値をコピーしました</translation>
    </message>
    <message>
        <source>The figures couldn&apos;t be copied.</source>
        <translation>測定値をコピーできませんでした。</translation>
    </message>
    <message>
        <source>%1, not the disk’s figure</source>
        <translation>%1、ディスクの測定値ではない</translation>
    </message>
</context>
<context>
    <name>RunHeadline</name>
    <message>
        <source>Sequential Write</source>
        <translation>シーケンシャル書き込み</translation>
    </message>
    <message>
        <source>Sequential Read</source>
        <translation>シーケンシャル読み取り</translation>
    </message>
</context>
<context>
    <name>RunMenu</name>
    <message>
        <source>Rename Report…</source>
        <translation>レポートの名前を変更…</translation>
    </message>
    <message>
        <source>Share Report Image…</source>
        <translation>レポート画像を共有…</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>測定値をコピー</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>テキストとしてコピー</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown の表としてコピー</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>計測ファイルを保存…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV をエクスポート…</translation>
    </message>
    <message>
        <source>Compare with Last Run of This Volume</source>
        <translation>このボリュームの前回の計測と比較</translation>
    </message>
    <message>
        <source>Delete Run</source>
        <translation>計測を削除</translation>
    </message>
</context>
<context>
    <name>RunNotifierText</name>
    <message>
        <source>A capacity check is running</source>
        <translation>容量検査を実行中です</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>ベンチマークを実行中です</translation>
    </message>
    <message>
        <source>write %1</source>
        <extracomment>%1 is the rate of the sequential write test, as 540 MB/s</extracomment>
        <translation>書き込み %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 is the rate of the sequential read test, as 540 MB/s</extracomment>
        <translation>読み取り %1</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>ベンチマークに失敗しました</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>ベンチマークが完了しました</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>容量検査に失敗しました</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>容量検査が完了しました</translation>
    </message>
</context>
<context>
    <name>RunRemarks</name>
    <message>
        <source>About these figures</source>
        <translation>測定値について</translation>
    </message>
    <message>
        <source>What these remarks mean</source>
        <translation>注記の意味</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>Write</source>
        <extracomment>Noun, before the rates of the sequential write test</extracomment>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <extracomment>Noun, before the rates of the sequential read test</extracomment>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Random read</source>
        <translation>ランダム読み取り</translation>
    </message>
    <message>
        <source>Random write</source>
        <translation>ランダム書き込み</translation>
    </message>
    <message>
        <source>File ops</source>
        <extracomment>File operations, where there is little room</extracomment>
        <translation>ファイル操作</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>peak %1</source>
        <translation>ピーク %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>最低 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a test, %2 a sentence on it</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, peak</source>
        <extracomment>%1 is the name of a test, whose highest rate follows</extracomment>
        <translation>%1、ピーク</translation>
    </message>
    <message>
        <source>%1, lowest</source>
        <extracomment>%1 is the name of a test, whose lowest rate follows</extracomment>
        <translation>%1、最低</translation>
    </message>
    <message>
        <source>%1, latency</source>
        <extracomment>%1 is the name of a test, whose latency follows</extracomment>
        <translation>%1、レイテンシー</translation>
    </message>
    <message>
        <source>About these figures</source>
        <translation>測定値について</translation>
    </message>
</context>
<context>
    <name>RunTitle</name>
    <message>
        <source>%1 Server</source>
        <translation>%1 サーバー</translation>
    </message>
    <message>
        <source>Network Server</source>
        <translation>ネットワークサーバー</translation>
    </message>
    <message>
        <source>External Drive</source>
        <translation>外付けドライブ</translation>
    </message>
    <message>
        <source>Network volume</source>
        <translation>ネットワークボリューム</translation>
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
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Save these figures as a text file</source>
        <translation>これらの値をテキストファイルとして保存</translation>
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
        <translation>%1  （注意）</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>インターフェイス</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>The drive&apos;s own verdict follows</extracomment>
        <translation>状態</translation>
    </message>
    <message>
        <source>Ondel Tarnwick S.M.A.R.T. report</source>
        <translation>Ondel Tarnwick S.M.A.R.T. レポート</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
        <extracomment>The size of the test&apos;s file</extracomment>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Write block</source>
        <translation>書き込みブロック</translation>
    </message>
    <message>
        <source>Read block</source>
        <translation>読み取りブロック</translation>
    </message>
    <message>
        <source>Random block</source>
        <translation>ランダムブロック</translation>
    </message>
    <message>
        <source>Bypass cache</source>
        <translation>キャッシュをバイパス</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>%1  ·  optimal</source>
        <extracomment>%1 is a size of blocks; it is the one that the volume prefers</extracomment>
        <translation>%1  ·  最適</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>ShareButton</name>
    <message>
        <source>Share</source>
        <extracomment>Button: opens a menu</extracomment>
        <translation>共有</translation>
    </message>
</context>
<context>
    <name>SharePicker</name>
    <message>
        <source>Copy Image</source>
        <translation>画像をコピー</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Send by Email…</source>
        <translation>メールで送信…</translation>
    </message>
    <message>
        <source>Copy as Text</source>
        <translation>テキストとしてコピー</translation>
    </message>
    <message>
        <source>Copy as Markdown Table</source>
        <translation>Markdown の表としてコピー</translation>
    </message>
    <message>
        <source>Save Run File…</source>
        <translation>計測ファイルを保存…</translation>
    </message>
    <message>
        <source>Save Runs…</source>
        <translation>計測を保存…</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV をエクスポート…</translation>
    </message>
</context>
<context>
    <name>SharedImageText</name>
    <message>
        <source>Image copied</source>
        <translation>画像をコピーしました</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be copied.</source>
        <translation>画像をコピーできませんでした。</translation>
    </message>
    <message>
        <source>The image couldn&apos;t be saved: %1</source>
        <translation>画像を保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Saved as “%1”</source>
        <translation>「%1」として保存しました</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>フォルダーを開けませんでした。</translation>
    </message>
    <message>
        <source>No mail program could be opened.</source>
        <translation>メールプログラムを開けませんでした。</translation>
    </message>
</context>
<context>
    <name>SidebarView</name>
    <message>
        <source>Tests and Settings</source>
        <translation>テストと設定</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>StatusPill</name>
    <message>
        <source>Checking…</source>
        <translation>検査中…</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>実行中…</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>Adjective: the run has come to its end</extracomment>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
</context>
<context>
    <name>SupportBanner</name>
    <message>
        <source>%1 is free.</source>
        <translation>%1 は無料です。</translation>
    </message>
    <message>
        <source>If it’s useful to you, your support helps keep it going.</source>
        <translation>お役に立ったなら、ご支援が開発継続の助けになります。</translation>
    </message>
    <message>
        <source>Support on Ko-fi</source>
        <translation>Ko-fi で支援</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Hide this for a week</source>
        <translation>1 週間表示しない</translation>
    </message>
    <message>
        <source>I’ve Already Supported %1</source>
        <translation>%1 をすでに支援しました</translation>
    </message>
</context>
<context>
    <name>TargetFactsText</name>
    <message>
        <source>Sparse files</source>
        <translation>スパースファイル</translation>
    </message>
    <message>
        <source>Cloning</source>
        <translation>クローン</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Hard links</source>
        <translation>ハードリンク</translation>
    </message>
    <message>
        <source>Symlinks</source>
        <translation>シンボリックリンク</translation>
    </message>
    <message>
        <source>Xattr</source>
        <translation>拡張属性</translation>
    </message>
    <message>
        <source>Case not known</source>
        <translation>大文字と小文字の区別は不明</translation>
    </message>
    <message>
        <source>Case-sensitive</source>
        <translation>大文字と小文字を区別する</translation>
    </message>
    <message>
        <source>Case-insensitive</source>
        <translation>大文字と小文字を区別しない</translation>
    </message>
    <message>
        <source>%1 · %2 external</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 外付け</translation>
    </message>
    <message>
        <source>%1 · %2 internal</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 内蔵</translation>
    </message>
    <message>
        <source>%1 · %2 removable</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 リムーバブル</translation>
    </message>
    <message>
        <source>%1 · %2 network</source>
        <extracomment>%1 is a kind of file system, %2 the volume&apos;s size</extracomment>
        <translation>%1 · %2 ネットワーク</translation>
    </message>
    <message>
        <source>The folder couldn&apos;t be opened.</source>
        <translation>フォルダーを開けませんでした。</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Optimal I/O size</source>
        <translation>最適な I/O サイズ</translation>
    </message>
    <message>
        <source>Block size</source>
        <translation>ブロックサイズ</translation>
    </message>
    <message>
        <source>Max filename</source>
        <translation>ファイル名の最大長</translation>
    </message>
    <message numerus="yes">
        <source>%1 chars</source>
        <translation>
            <numerusform>%1 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>Max path</source>
        <translation>パスの最大長</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Free</source>
        <extracomment>The free space of the volume</extracomment>
        <translation>空き</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>不明: %1</translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>S.M.A.R.T. の値がありません: %1</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>Choose a folder on the volume to test (a temporary working folder is written there and removed).</source>
        <translation>テストするボリューム上のフォルダーを選択してください（そこに一時的な作業フォルダーを書き込み、後で削除します）。</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>The button that accepts the folder</extracomment>
        <translation>選択</translation>
    </message>
</context>
<context>
    <name>TarnwickAppText</name>
    <message>
        <source>the window that is already open does not answer; it will do what was asked as soon as it can.</source>
        <translation>すでに開いているウィンドウが応答しません。指示された操作は、可能になりしだい実行されます。</translation>
    </message>
    <message>
        <source>the window that is already open (process %1) does not answer; it will do what was asked as soon as it can.</source>
        <translation>すでに開いているウィンドウ（プロセス %1）が応答しません。指示された操作は、可能になりしだい実行されます。</translation>
    </message>
</context>
<context>
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Write</source>
        <extracomment>Noun: what a curve shows</extracomment>
        <translation>書き込み</translation>
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
        <translation>Ondel Tarnwick について</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>フォルダーを選択…</translation>
    </message>
    <message>
        <source>Open Run File…</source>
        <translation>計測ファイルを開く…</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Menu entry: closes the window</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <extracomment>Title of a menu: a run of the benchmark</extracomment>
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>Run Benchmark</source>
        <translation>ベンチマークを実行</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>容量を検査…</translation>
    </message>
    <message>
        <source>Compare</source>
        <extracomment>Menu entry: begins to choose runs</extracomment>
        <translation>比較</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>削除を元に戻す</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Tarnwick Help</source>
        <translation>Tarnwick ヘルプ</translation>
    </message>
    <message>
        <source>Report a Problem…</source>
        <translation>問題を報告…</translation>
    </message>
    <message>
        <source>Support Tarnwick…</source>
        <translation>Tarnwick を支援…</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LanguageSetting</name>
    <message>
        <source>Like the desktop</source>
        <translation>デスクトップに合わせる</translation>
    </message>
</context>
<context>
    <name>TarnwickSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>アップデートを自動的に確認する</translation>
    </message>
    <message>
        <source>Looks for a new version about once a day and asks before installing it. Off, Tarnwick only checks when you choose Check for Updates.</source>
        <translation>1 日に 1 回ほど新しいバージョンを調べ、インストールする前に確認します。オフの場合は、［アップデートを確認］を選んだときだけ調べます。</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>This build doesn’t update itself. Development builds are built without the update feed, so they can’t replace themselves with a release.</source>
        <translation>このビルドは自身を更新しません。開発ビルドにはアップデートの配信元が組み込まれていないため、リリース版に置き換わることはありません。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>ウィンドウの言語</translation>
    </message>
    <message>
        <source>The window follows when Tarnwick is started the next time.</source>
        <translation>次に Tarnwick を起動したときに、ウィンドウに反映されます。</translation>
    </message>
    <message>
        <source>Shared pictures in English</source>
        <translation>共有する画像は英語にする</translation>
    </message>
    <message>
        <source>Off, their texts are in the language of the window.</source>
        <translation>オフの場合、画像の文字はウィンドウの言語になります。</translation>
    </message>
    <message>
        <source>Support Tarnwick</source>
        <translation>Tarnwick を支援</translation>
    </message>
    <message>
        <source>Tarnwick is free, and made by one developer. Support covers hosting and the time it takes to keep it going.</source>
        <translation>Tarnwick は無料で、1 人の開発者が作っています。ご支援は、ホスティングの費用と、開発を続けるための時間に充てられます。</translation>
    </message>
    <message>
        <source>Support on Ko-fi…</source>
        <translation>Ko-fi で支援…</translation>
    </message>
    <message>
        <source>I’ve already supported Tarnwick</source>
        <translation>Tarnwick をすでに支援しました</translation>
    </message>
    <message>
        <source>Hides the support note at the foot of the sidebar.</source>
        <translation>サイドバーの下部にある支援の案内を隠します。</translation>
    </message>
</context>
<context>
    <name>TestRow</name>
    <message>
        <source>%1. %2</source>
        <extracomment>%1 is the figure of a test, %2 what the test does</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>ThroughputChart</name>
    <message>
        <source>Throughput over time</source>
        <translation>スループットの推移</translation>
    </message>
</context>
<context>
    <name>ThroughputText</name>
    <message>
        <source>%1: %2 to %3 %6 over %4, last %5 %6.</source>
        <extracomment>Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5</extracomment>
        <translation>%1: %4 の間に %2 から %3 %6、直近は %5 %6。</translation>
    </message>
    <message>
        <source>No measurements yet.</source>
        <translation>まだ測定データがありません。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <extracomment>Of a window</extracomment>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Of a window: it gets back the size that it had, or it fills the screen</extracomment>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Of a window</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message numerus="yes">
        <source>%n runs deleted</source>
        <translation>
            <numerusform>%n 件の計測を削除しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>計測を削除しました</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <extracomment>%1 is a sentence (Downloading the update…), %2 how much is done</extracomment>
        <translation>%1 %2%</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
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
        <translation>アップデートを自動的に確認しますか？</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>A new version of %1 is available</source>
        <translation>%1 の新しいバージョンがあります</translation>
    </message>
    <message>
        <source>Downloading the update…</source>
        <translation>アップデートをダウンロード中…</translation>
    </message>
    <message>
        <source>Checking the update’s signature…</source>
        <translation>アップデートの署名を検証中…</translation>
    </message>
    <message>
        <source>The update is ready to install</source>
        <translation>アップデートをインストールできます</translation>
    </message>
    <message>
        <source>Couldn’t check for updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>Couldn’t get the update</source>
        <translation>アップデートを取得できませんでした</translation>
    </message>
    <message>
        <source>%1 can look for a new version about once a day. It sends nothing about you or your disks, and asks before it downloads anything.</source>
        <translation>%1 は 1 日に 1 回ほど新しいバージョンを調べることができます。お客様やお使いのディスクについての情報は一切送信せず、何かをダウンロードする前には確認します。</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version.</source>
        <translation>%1 %2 は最新バージョンです。</translation>
    </message>
    <message>
        <source>You have %1. The download of %2 takes %3.</source>
        <translation>現在のバージョンは %1 です。%2 のダウンロードサイズは %3 です。</translation>
    </message>
    <message>
        <source>%1 %2 is signed by its maker. Your system’s software installer goes on from here.</source>
        <translation>%1 %2 は製作者によって署名されています。この先はシステムのソフトウェアインストーラーが行います。</translation>
    </message>
    <message>
        <source>Check Automatically</source>
        <translation>自動的に確認</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>アップデートをインストール</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Don’t Check</source>
        <translation>確認しない</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>The update server couldn’t be reached. Check the internet connection and try again.</source>
        <translation>アップデートサーバーに接続できませんでした。インターネット接続を確認してもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server’s answer couldn’t be read.</source>
        <translation>アップデートサーバーの応答を読み取れませんでした。</translation>
    </message>
    <message>
        <source>This build’s update server isn’t reached over a secure connection, so nothing was asked of it.</source>
        <translation>このビルドのアップデートサーバーは安全な接続を使用していないため、問い合わせは行いませんでした。</translation>
    </message>
    <message>
        <source>There is a new version of %1, but the update server doesn’t say what is needed to load it safely.</source>
        <translation>%1 の新しいバージョンがありますが、安全に取得するために必要な情報がアップデートサーバーにありません。</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded. Check the internet connection and try again.</source>
        <translation>アップデートをダウンロードできませんでした。インターネット接続を確認してもう一度お試しください。</translation>
    </message>
    <message>
        <source>The download isn’t as long as the update should be, so it was thrown away.</source>
        <translation>ダウンロードしたファイルの長さが本来のアップデートと異なるため、破棄しました。</translation>
    </message>
    <message>
        <source>The download isn’t signed by the maker of %1, so it was thrown away.</source>
        <translation>ダウンロードしたファイルは %1 の製作者によって署名されていないため、破棄しました。</translation>
    </message>
    <message>
        <source>There isn’t enough room for the update in the temporary folder.</source>
        <translation>一時フォルダーにアップデートのための十分な空きがありません。</translation>
    </message>
    <message>
        <source>The update couldn’t be written to the temporary folder.</source>
        <translation>アップデートを一時フォルダーに書き込めませんでした。</translation>
    </message>
    <message>
        <source>No program on this system opens the update’s package.</source>
        <translation>アップデートのパッケージを開けるプログラムがこのシステムにありません。</translation>
    </message>
</context>
<context>
    <name>VolumeDropdown</name>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>ボリュームを選択</translation>
    </message>
    <message>
        <source>No volume selected</source>
        <translation>ボリュームが選択されていません</translation>
    </message>
</context>
<context>
    <name>VolumeMenu</name>
    <message>
        <source>Mounted volumes</source>
        <translation>マウント済みのボリューム</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>フォルダーを選択…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Check Capacity…</source>
        <translation>容量を検査…</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message>
        <source>Internal</source>
        <extracomment>How a volume is attached: the drive is built into the machine</extracomment>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>External</source>
        <extracomment>How a volume is attached: the drive has a case and a cable of its own</extracomment>
        <translation>外付け</translation>
    </message>
    <message>
        <source>Removable</source>
        <extracomment>How a volume is attached: a stick, a card or a disc</extracomment>
        <translation>リムーバブル</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>How a volume is attached: a server keeps it</extracomment>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Stands for the name of a volume that has none</extracomment>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Root</source>
        <extracomment>The name of the volume at &quot;/&quot;</extracomment>
        <translation>ルート</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <extracomment>A kind of file system: a folder that a virtual machine shares with its host</extracomment>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Fill disk</source>
        <extracomment>The size of a test: as much as there is free space</extracomment>
        <translation>ディスクをいっぱいに</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Sustained: the median rate of the test’s last third, which a long copy settles at; peak and lowest are its fastest and its slowest tenth of a second.</source>
        <translation>持続速度: テストの最後の 3 分の 1 における速度の中央値で、長いコピーが落ち着く速度です。ピークと最低は、最も速い 0.1 秒間と最も遅い 0.1 秒間の速度です。</translation>
    </message>
    <message>
        <source>Has data go past the system’s memory, so that the disk is measured and not the cache.</source>
        <translation>データがシステムのメモリーを経由しないようにし、キャッシュではなくディスクを測定します。</translation>
    </message>
    <message>
        <source>Writes one large file from its beginning to its end and flushes it to the disk, as a long copy to this volume does.</source>
        <translation>1 つの大きなファイルを先頭から末尾まで書き込み、ディスクへフラッシュします。このボリュームへの長いコピーに相当します。</translation>
    </message>
    <message>
        <source>Reads one large file from its beginning to its end, as a long copy from this volume does.</source>
        <translation>1 つの大きなファイルを先頭から末尾まで読み取ります。このボリュームからの長いコピーに相当します。</translation>
    </message>
    <message>
        <source>Reads blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>ファイル内の散らばった位置のブロックを、多くのプログラムと同じように 1 つずつ読み取ります。同時に複数を読み取ると、待ち時間ではなくドライブのキューを測ることになります。IOPS は 1 秒あたりのこうした操作の回数です。</translation>
    </message>
    <message>
        <source>Writes blocks at scattered places of the file, one at a time as most programs do: more at once would measure the drive’s queue and not how long one waits; IOPS are such operations in a second.</source>
        <translation>ファイル内の散らばった位置のブロックを、多くのプログラムと同じように 1 つずつ書き込みます。同時に複数を書き込むと、待ち時間ではなくドライブのキューを測ることになります。IOPS は 1 秒あたりのこうした操作の回数です。</translation>
    </message>
    <message>
        <source>Creates, looks up, renames and deletes empty files; the figure is how many it created in a second.</source>
        <translation>空のファイルの作成、属性の取得、名前の変更、削除を行います。測定値は 1 秒間に作成したファイルの数です。</translation>
    </message>
</context>
</TS>
