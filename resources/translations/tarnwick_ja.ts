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
    <name>BigStat</name>
    <message>
        <source>peak %1
min %2</source>
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
        <source>The server rejected the report (%1).</source>
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
        <translation>%1の容量</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Back to the runs</source>
        <translation>計測に戻る</translation>
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
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読み取り</translation>
    </message>
</context>
<context>
    <name>CapacityText</name>
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
        <source>The samples hold what was written, but they lie close together.</source>
        <translation>サンプルは書き込んだ内容を保持していますが、互いに近い位置に集まっています。</translation>
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
        <source>What no check can tell: whether the space under your files is sound, what the drive keeps in reserve, and whether a repaired block will last.</source>
        <translation>どの検査でも分からないこと: 既存のファイルが占める領域が健全か、ドライブがどれだけ予備を残しているか、修復されたブロックが今後も持つか。</translation>
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
        <source>The check was stopped: what it had not read back is not known.</source>
        <translation>検査が停止されたため、読み戻していない部分については分かりません。</translation>
    </message>
    <message>
        <source>A quick check writes a few places only. It finds most false capacities in seconds; finding nothing proves nothing.</source>
        <translation>簡易検査は数か所にしか書き込みません。容量の偽装の大半は数秒で見つかりますが、見つからなくても問題がない証明にはなりません。</translation>
    </message>
    <message>
        <source>Less was checked than planned: other programs may have taken the space.</source>
        <translation>予定より少ない量しか検査されませんでした。ほかのプログラムが領域を使用した可能性があります。</translation>
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
        <source>Capacity of %1</source>
        <translation>%1の容量</translation>
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
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読み取り</translation>
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
        <translation>書き込みの推移</translation>
    </message>
    <message>
        <source>Read over time</source>
        <translation>読み取りの推移</translation>
    </message>
</context>
<context>
    <name>ComparisonCard</name>
    <message>
        <source>Runs comparison</source>
        <translation>計測の比較</translation>
    </message>
    <message>
        <source>%1 benchmarks compared</source>
        <translation>%1 件のベンチマークを比較</translation>
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
    <message>
        <source>Comparing %1 runs</source>
        <translation>%1 件の計測を比較中</translation>
    </message>
    <message>
        <source>Share a comparison image</source>
        <translation>比較画像を共有</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Differences from</source>
        <translation>差の基準</translation>
    </message>
</context>
<context>
    <name>CompleteBadge</name>
    <message>
        <source>Complete</source>
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
        <translation>故障の兆候あり</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>検証済み</translation>
    </message>
    <message>
        <source>S.M.A.R.T.</source>
        <translation>S.M.A.R.T.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
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
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読み取り</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Delete %1</source>
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>Delete this run</source>
        <translation>この計測を削除</translation>
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
        <translation>警告</translation>
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
        <translation>%1 %2、%3</translation>
    </message>
    <message>
        <source>Drive %1 °C</source>
        <translation>ドライブ %1 °C</translation>
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
        <source>the volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Volume</source>
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
        <translation>比較</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Compare %1</source>
        <translation>%1 件を比較</translation>
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
    <name>QFileDialog</name>
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
        <translation>開く</translation>
    </message>
    <message>
        <source>Tarnwick runs</source>
        <translation>Tarnwick の計測</translation>
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
        <translation>概要 — 1 行での説明</translation>
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
        <translation>メールアドレス — 任意、返信をご希望の場合</translation>
    </message>
    <message>
        <source>%1 %2 · %3 · %4 will be attached.</source>
        <translation>%1 %2 · %3 · %4 が添付されます。</translation>
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
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Shaded: the last third of each test, whose median is the sustained rate. Triangles: peak and lowest rate.</source>
        <translation>網掛け: 各テストの最後の 3 分の 1。その中央値が持続速度です。三角形: ピーク速度と最低速度。</translation>
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
    <name>RunNotifier</name>
    <message>
        <source>A capacity check is running</source>
        <translation>容量検査を実行中です</translation>
    </message>
    <message>
        <source>A benchmark is running</source>
        <translation>ベンチマークを実行中です</translation>
    </message>
    <message>
        <source>Benchmark failed</source>
        <translation>ベンチマークに失敗しました</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>書き込み %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <translation>読み取り %1</translation>
    </message>
    <message>
        <source>Benchmark complete</source>
        <translation>ベンチマークが完了しました</translation>
    </message>
    <message>
        <source>Capacity check complete</source>
        <translation>容量検査が完了しました</translation>
    </message>
    <message>
        <source>Capacity check failed</source>
        <translation>容量検査に失敗しました</translation>
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
        <translation>これらの測定値をテキストファイルとして保存</translation>
    </message>
</context>
<context>
    <name>SettingsBlock</name>
    <message>
        <source>Size</source>
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
    <name>TarnwickChart</name>
    <message>
        <source>Read</source>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Write</source>
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
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Run</source>
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
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::LiveCheck</name>
    <message>
        <source>All free space</source>
        <translation>すべての空き容量</translation>
    </message>
    <message>
        <source>No</source>
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
        <translation>1 か所の区間</translation>
    </message>
    <message numerus="yes">
        <source>in %1 parts</source>
        <translation>
            <numerusform>%1 か所の区間</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1～%2: %3</translation>
    </message>
    <message>
        <source>Checked</source>
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
    <name>TarnwickKit::views::LiveRun</name>
    <message>
        <source>done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>これから</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2、%3</translation>
    </message>
    <message>
        <source>A few seconds</source>
        <translation>数秒</translation>
    </message>
    <message>
        <source>About %1 s</source>
        <translation>約 %1 s</translation>
    </message>
    <message>
        <source>About %1 min</source>
        <translation>約 %1 min</translation>
    </message>
    <message>
        <source>About %1 h</source>
        <translation>約 %1 h</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>%1 left of this test</source>
        <translation>このテストは残り %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 operations</source>
        <translation>%1 回の操作</translation>
    </message>
    <message>
        <source>Preparing…</source>
        <translation>準備中…</translation>
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
        <translation>%1 件の計測</translation>
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
    <name>TarnwickKit::views::Runs</name>
    <message>
        <source>reference</source>
        <translation>基準</translation>
    </message>
    <message>
        <source>Not the disk’s figure: %1</source>
        <translation>ディスクの測定値ではない: %1</translation>
    </message>
    <message>
        <source>Not the disk’s figures: %1</source>
        <translation>ディスクの測定値ではない: %1</translation>
    </message>
    <message>
        <source>Random %1 read</source>
        <translation>ランダム %1 読み取り</translation>
    </message>
    <message>
        <source>Random %1 write</source>
        <translation>ランダム %1 書き込み</translation>
    </message>
    <message>
        <source>File operations</source>
        <translation>ファイル操作</translation>
    </message>
    <message>
        <source>Read/Write</source>
        <translation>読み取り/書き込み</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Random</source>
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
        <translation>空き</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>キャッシュ</translation>
    </message>
    <message>
        <source>Bypassed</source>
        <translation>バイパス</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>使用</translation>
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
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
</context>
<context>
    <name>TarnwickKit::views::SharedImage</name>
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
    <name>TarnwickKit::views::TargetFacts</name>
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
    <message>
        <source>%1 chars</source>
        <translation>%1 文字</translation>
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
        <translation>空き</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <translation>不明: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、 </translation>
    </message>
    <message>
        <source>No S.M.A.R.T. figures: %1</source>
        <translation>S.M.A.R.T. の値がありません: %1</translation>
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
    <name>TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>UndoNote</name>
    <message>
        <source>%1 runs deleted</source>
        <translation>%1 件の計測を削除しました</translation>
    </message>
    <message>
        <source>Run deleted</source>
        <translation>計測を削除しました</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
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
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
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
        <translation>%1 は 1 日に 1 回ほど新しいバージョンを調べることができます。お使いの環境やディスクについての情報は一切送信せず、何かをダウンロードする前には確認します。</translation>
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
        <translation>空のファイルを作成、検索、名前変更、削除します。測定値は 1 秒間に作成したファイルの数です。</translation>
    </message>
</context>
</TS>
