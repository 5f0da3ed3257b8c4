<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AttentionFilterButton</name>
    <message>
        <source>Show, filtered</source>
        <translation>表示、絞り込み中</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>AttentionFilterScene</name>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>まとめ方</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>Find a console</source>
        <translation>コンソールを検索</translation>
    </message>
</context>
<context>
    <name>AttentionNowContent</name>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>コンソールはまだありません。</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Corvelを追加</translation>
    </message>
</context>
<context>
    <name>AttentionScene</name>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変化</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>要注意</translation>
    </message>
</context>
<context>
    <name>AttentionWatchButton</name>
    <message>
        <source>Watch</source>
        <translation>監視</translation>
    </message>
</context>
<context>
    <name>ChangesCard</name>
    <message>
        <source>Worse, above</source>
        <translation>悪化（上）</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>改善（下）</translation>
    </message>
</context>
<context>
    <name>ChangesContent</name>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
</context>
<context>
    <name>ChosenLine</name>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1 needs a value: %2.</source>
        <extracomment>%1 an option, %2 a word for what it takes</extracomment>
        <translation>%1には値が必要です：%2。</translation>
    </message>
    <message>
        <source>Only this console, by name or address; may be repeated.</source>
        <translation>このコンソールだけ（名前またはアドレス）。複数回指定できます。</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>JSONで出力します。</translation>
    </message>
    <message>
        <source>Write comma-separated values.</source>
        <translation>カンマ区切りで出力します。</translation>
    </message>
    <message>
        <source>Use this data folder instead of Lodestar&apos;s own.</source>
        <translation>Lodestar標準のものではなく、このデータフォルダーを使います。</translation>
    </message>
    <message>
        <source>Say how the command is used.</source>
        <translation>コマンドの使い方を表示します。</translation>
    </message>
    <message>
        <source>Say which version this is.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>%1 takes a number, not %2.</source>
        <extracomment>%1 an option, %2 what was given</extracomment>
        <translation>%1には数を指定します。%2は使えません。</translation>
    </message>
    <message>
        <source>%1 takes minutes, or a time as 30s or 2h, not %2.</source>
        <translation>%1には分、または30sや2hのような時間を指定します。%2は使えません。</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>%1というオプションはありません。</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1は値を取りません。</translation>
    </message>
    <message>
        <source>No command was given.</source>
        <translation>コマンドが指定されていません。</translation>
    </message>
    <message>
        <source>There is no command %1.</source>
        <translation>%1というコマンドはありません。</translation>
    </message>
    <message>
        <source>%1 takes no option %2.</source>
        <translation>%1に%2というオプションはありません。</translation>
    </message>
    <message>
        <source>It is used so: %1</source>
        <translation>使い方：%1</translation>
    </message>
    <message>
        <source>--json and --csv exclude one another.</source>
        <translation>--jsonと--csvは同時に使えません。</translation>
    </message>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Corvelコンソールを監視し、何も変更しません。</translation>
    </message>
    <message>
        <source>With every command:</source>
        <translation>すべてのコマンドで：</translation>
    </message>
    <message>
        <source>Ends with 0 when all is well, 1 after warnings, 2 after errors, and 3 when that is not known.</source>
        <translation>終了コードは、すべて良好なら0、警告なら1、エラーなら2、不明なら3です。</translation>
    </message>
    <message>
        <source>Read passwords from descriptor N, one a line.</source>
        <translation>記述子Nからパスワードを1行に1つずつ読みます。</translation>
    </message>
    <message>
        <source>Tell how all consoles are. The exit code says how the fleet is.</source>
        <translation>すべてのコンソールの状況を表示します。終了コードも状況を表します。</translation>
    </message>
    <message>
        <source>List everything that needs attention. The exit code as with status.</source>
        <translation>注意すべきものをすべて一覧表示します。終了コードはstatusと同じです。</translation>
    </message>
    <message>
        <source>List consoles, systems, io-servers, partitions, events or groups.</source>
        <translation>consoles、systems、io-servers、partitions、events、groupsのいずれかを一覧表示します。</translation>
    </message>
    <message>
        <source>Show every field as a column, not only the usual ones.</source>
        <translation>普段の列だけでなく、すべての項目を列として表示します。</translation>
    </message>
    <message>
        <source>Show one object, by identifier, name or number.</source>
        <translation>識別子、名前、番号のいずれかで1つを表示します。</translation>
    </message>
    <message>
        <source>List serviceable events.</source>
        <translation>サービスイベントを一覧表示します。</translation>
    </message>
    <message>
        <source>Only open ones.</source>
        <translation>未解決のものだけ。</translation>
    </message>
    <message>
        <source>Only those that are reported to the maker.</source>
        <translation>メーカーに報告されるものだけ。</translation>
    </message>
    <message>
        <source>sent, newest (as at first), status or code.</source>
        <translation>sent、newest（初期値）、status、code。</translation>
    </message>
    <message>
        <source>Show processors and memory of a system over the last half day.</source>
        <translation>システムのプロセッサーとメモリーの過去半日を表示します。</translation>
    </message>
    <message>
        <source>With --csv: memory instead of processors.</source>
        <translation>--csvと併用：プロセッサーの代わりにメモリー。</translation>
    </message>
    <message>
        <source>Read the consoles again and again, and write a line for each change.</source>
        <translation>コンソールを繰り返し読み、変化ごとに1行出力します。</translation>
    </message>
    <message>
        <source>Minutes between readings, or 30s, 2h; at first as Lodestar&apos;s Watch has it.</source>
        <translation>読み取りの間隔（分、または30s、2h）。初期値はLodestarの監視の設定です。</translation>
    </message>
    <message>
        <source>End after so many readings.</source>
        <translation>この回数の読み取りで終わります。</translation>
    </message>
    <message>
        <source>Write how all consoles are as OpenMetrics, for Prometheus.</source>
        <translation>すべてのコンソールの状況をPrometheus用のOpenMetricsで出力します。</translation>
    </message>
    <message>
        <source>Replace this file, for a collector of text files; - is standard output.</source>
        <translation>このファイルを置き換えます（テキストファイルの収集用）。-は標準出力です。</translation>
    </message>
    <message>
        <source>Serve it at /metrics instead, on this machine only; ADDRESS:PORT, too.</source>
        <translation>代わりに/metricsで提供します（このマシンのみ）。アドレス:ポートも指定できます。</translation>
    </message>
    <message>
        <source>With --listen: minutes between readings, or 30s, 2h.</source>
        <translation>--listenと併用：読み取りの間隔（分、または30s、2h）。</translation>
    </message>
    <message>
        <source>Also its processors and memory; may be repeated.</source>
        <translation>そのプロセッサーとメモリーも。複数回指定できます。</translation>
    </message>
    <message>
        <source>List the registered consoles without asking them.</source>
        <translation>登録済みのコンソールを、問い合わせずに一覧表示します。</translation>
    </message>
    <message>
        <source>Verify a console and register it.</source>
        <translation>コンソールを確認して登録します。</translation>
    </message>
    <message>
        <source>Log on as this user.</source>
        <translation>このユーザーでログオンします。</translation>
    </message>
    <message>
        <source>Call it so; the address at first.</source>
        <translation>表示名です。初期値はアドレスです。</translation>
    </message>
    <message>
        <source>Remove a console and what is remembered of it.</source>
        <translation>コンソールと、その記録を削除します。</translation>
    </message>
    <message>
        <source>Verify the consoles of a fleet sheet and register them together; - reads standard input.</source>
        <translation>コンソール表のコンソールを確認し、まとめて登録します。-は標準入力を読みます。</translation>
    </message>
    <message>
        <source>Register none unless all can be.</source>
        <translation>すべて登録できなければ、一つも登録しません。</translation>
    </message>
    <message>
        <source>Write the consoles as a fleet sheet, without secrets; - writes standard output.</source>
        <translation>コンソールをパスワードなしのコンソール表として書き出します。-は標準出力です。</translation>
    </message>
    <message>
        <source>The same as consoles list.</source>
        <translation>consoles listと同じです。</translation>
    </message>
    <message>
        <source>%1 did not answer: %2.</source>
        <extracomment>%1 a console, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>%1は応答しませんでした：%2。</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;</extracomment>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>コンソールはまだありません。</translation>
    </message>
    <message>
        <source>Several consoles are called %1. Name one by its address.</source>
        <translation>%1という名前のコンソールが複数あります。アドレスで指定してください。</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1を削除しました。</translation>
    </message>
    <message>
        <source>consoles export writes a fleet sheet; consoles list --json writes JSON.</source>
        <translation>consoles exportはコンソール表を、consoles list --jsonはJSONを出力します。</translation>
    </message>
    <message>
        <source>Could not be saved: %1</source>
        <translation>保存できませんでした：%1</translation>
    </message>
    <message numerus="yes">
        <source>Saved %Ln consoles as %1</source>
        <extracomment>%1 the name of a file</extracomment>
        <translation>
            <numerusform>コンソール%Ln台を%1に保存しました</numerusform>
        </translation>
    </message>
    <message>
        <source>export takes either --openmetrics FILE or --listen PORT.</source>
        <translation>exportには--openmetrics ファイルか--listen ポートのどちらかを指定します。</translation>
    </message>
    <message>
        <source>--every goes with --listen; a file is written once.</source>
        <translation>--everyは--listenと使います。ファイルは一度だけ書き出します。</translation>
    </message>
    <message>
        <source>export writes OpenMetrics.</source>
        <translation>exportはOpenMetricsを出力します。</translation>
    </message>
    <message numerus="yes">
        <source>export takes --system at most %Ln times.</source>
        <translation>
            <numerusform>exportの--systemは最大%Ln回です。</numerusform>
        </translation>
    </message>
    <message>
        <source>The metrics of %1 cannot be had: %2.</source>
        <extracomment>%1 a system, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>%1の指標は得られません：%2。</translation>
    </message>
    <message>
        <source>Listening on %1</source>
        <translation>%1で待ち受けています</translation>
    </message>
    <message>
        <source>%1 is no file that could be replaced.</source>
        <translation>%1は置き換えられるファイルではありません。</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1に書けません</translation>
    </message>
    <message>
        <source>reading %1 of %2</source>
        <extracomment>numbers of consoles</extracomment>
        <translation>読み取り中 %1 / %2</translation>
    </message>
    <message>
        <source>%1 was left out: its certificate changed within an attempt. To take the new one, name the console with --console.</source>
        <translation>%1は除かれました：試行の途中で証明書が変わりました。新しいものを受け入れるには、--consoleでこのコンソールを指定してください。</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1を開けません</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1を読めません</translation>
    </message>
    <message>
        <source>This is not a CSV file: %1.</source>
        <translation>これはCSVファイルではありません：%1。</translation>
    </message>
    <message>
        <source>registered already, left alone</source>
        <translation>登録済み、変更しません</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>アドレスなし</translation>
    </message>
    <message>
        <source>no user</source>
        <translation>ユーザーなし</translation>
    </message>
    <message>
        <source>no address of a console: %1</source>
        <translation>コンソールのアドレスではありません：%1</translation>
    </message>
    <message>
        <source>the same address as row %1</source>
        <translation>%1行と同じアドレス</translation>
    </message>
    <message>
        <source>Password of %1</source>
        <translation>%1のパスワード</translation>
    </message>
    <message numerus="yes">
        <source>verifying %1 of %2, about %Ln s left</source>
        <translation>
            <numerusform>確認中 %1 / %2、残り約%Ln秒</numerusform>
        </translation>
    </message>
    <message>
        <source>verifying %1 of %2</source>
        <translation>確認中 %1 / %2</translation>
    </message>
    <message>
        <source>Nothing was added.</source>
        <translation>何も追加していません。</translation>
    </message>
    <message>
        <source>The column %1 was not read: passwords do not belong in a sheet.</source>
        <translation>列%1は読みませんでした。パスワードは表に入れるものではありません。</translation>
    </message>
    <message>
        <source>The column %1 is not used.</source>
        <translation>列%1は使いません。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles were added.</source>
        <translation>
            <numerusform>コンソール%Ln台を追加しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Say as whom to log on with --user.</source>
        <translation>ログオンするユーザーを--userで指定してください。</translation>
    </message>
    <message>
        <source>The address is empty.</source>
        <translation>アドレスが空です。</translation>
    </message>
    <message>
        <source>Nothing was added: %1.</source>
        <translation>何も追加していません：%1。</translation>
    </message>
    <message>
        <source>Nothing was added. %1: %2.</source>
        <extracomment>%1 an address, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>何も追加していません。%1：%2。</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>%1 was added.</source>
        <translation>%1を追加しました。</translation>
    </message>
    <message>
        <source>%1 was added, %2.</source>
        <translation>%1を追加しました（%2）。</translation>
    </message>
    <message>
        <source>--listen takes a port, or an address and a port as 127.0.0.1:9750, not %1.</source>
        <translation>--listenにはポート、または127.0.0.1:9750のようなアドレスとポートを指定します。%1は使えません。</translation>
    </message>
    <message>
        <source>--listen takes an address in numbers, not %1.</source>
        <translation>--listenには数字のアドレスを指定します。%1は使えません。</translation>
    </message>
    <message>
        <source>--listen takes no address that other machines reach, such as %1: what it serves is neither encrypted nor guarded. Put a server in front of it that is.</source>
        <translation>--listenには%1のような、他のマシンから届くアドレスは使えません。提供する内容は暗号化も保護もされません。それを備えたサーバーを前に置いてください。</translation>
    </message>
    <message>
        <source>Cannot listen on %1</source>
        <translation>%1で待ち受けできません</translation>
    </message>
    <message>
        <source>lodestar-cli --help lists all commands.</source>
        <translation>lodestar-cli --helpですべてのコマンドを表示します。</translation>
    </message>
    <message>
        <source>total processors</source>
        <translation>プロセッサー合計</translation>
    </message>
    <message>
        <source>allocated processors</source>
        <translation>プロセッサー割り当て</translation>
    </message>
    <message>
        <source>used processors</source>
        <translation>プロセッサー使用</translation>
    </message>
    <message>
        <source>total memory, GB</source>
        <translation>メモリー合計、GB</translation>
    </message>
    <message>
        <source>allocated memory, GB</source>
        <translation>メモリー割り当て、GB</translation>
    </message>
    <message>
        <source>used memory, GB</source>
        <translation>メモリー使用、GB</translation>
    </message>
    <message>
        <source>No sample had values.</source>
        <translation>値のあるサンプルはありませんでした。</translation>
    </message>
    <message>
        <source>No %1.</source>
        <translation>%1はありません。</translation>
    </message>
    <message>
        <source>No known %1.</source>
        <translation>分かる範囲で%1はありません。</translation>
    </message>
    <message>
        <source>No open %1.</source>
        <translation>未解決の%1はありません。</translation>
    </message>
    <message>
        <source>No known open %1.</source>
        <translation>分かる範囲で未解決の%1はありません。</translation>
    </message>
    <message>
        <source>No such %1.</source>
        <translation>そのような%1はありません。</translation>
    </message>
    <message>
        <source>No known such %1.</source>
        <translation>分かる範囲でそのような%1はありません。</translation>
    </message>
    <message>
        <source>--order takes sent, newest, status or code, not %1.</source>
        <translation>--orderにはsent、newest、status、codeを指定します。%1は使えません。</translation>
    </message>
    <message>
        <source>Nothing of that kind is called %1.</source>
        <translation>その種類に%1というものはありません。</translation>
    </message>
    <message>
        <source>There is no kind %1: consoles, systems, io-servers, partitions, events or groups.</source>
        <extracomment>The kinds are words of the command, which stay as they are</extracomment>
        <translation>%1という種類はありません：consoles、systems、io-servers、partitions、events、groups。</translation>
    </message>
    <message>
        <source>The output cannot be written</source>
        <translation>出力を書けません</translation>
    </message>
    <message>
        <source>The password cannot be read</source>
        <translation>パスワードを読めません</translation>
    </message>
    <message>
        <source>There is no password.</source>
        <translation>パスワードがありません。</translation>
    </message>
    <message>
        <source>There is no terminal to ask for the password. Give --password-fd N to read it from descriptor N.</source>
        <translation>パスワードを尋ねるターミナルがありません。--password-fd Nで記述子Nから読ませてください。</translation>
    </message>
    <message>
        <source>Lodestar is open, or another command is at work, in %1. Close it, or name another folder with --data.</source>
        <translation>%1でLodestarが開いているか、別のコマンドが動いています。閉じるか、--dataで別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Lodestar keeps nothing in a folder of another user: %1</source>
        <translation>Lodestarは別のユーザーのフォルダーには何も置きません：%1</translation>
    </message>
    <message>
        <source>Lodestar cannot lock its folder: Lodestar.lock in %1 is no file of yours.</source>
        <translation>Lodestarはフォルダーをロックできません：%1のLodestar.lockはあなたのファイルではありません。</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <translation>ディスクは読み取り専用です。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>There is no home folder. Name a data folder with --data.</source>
        <translation>ホームフォルダーがありません。--dataでデータフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>There is no data folder. %1</source>
        <translation>データフォルダーがありません。%1</translation>
    </message>
    <message>
        <source>A reset of Lodestar was cut short. Open Lodestar once to finish it.</source>
        <translation>Lodestarのリセットが途中で止まりました。Lodestarを一度開いて完了してください。</translation>
    </message>
    <message>
        <source>The consoles in %1 cannot be read. %2</source>
        <extracomment>%1 a folder, %2 a sentence that tells why</extracomment>
        <translation>%1のコンソールを読めません。%2</translation>
    </message>
    <message>
        <source>No console is called %1.</source>
        <translation>%1というコンソールはありません。</translation>
    </message>
    <message>
        <source>The history was damaged. It was set aside as %1, and a new one was begun. Earlier changes are missing.</source>
        <translation>履歴が壊れていました。%1として別に保存し、新しい履歴を始めました。以前の変化はありません。</translation>
    </message>
    <message>
        <source>Nothing was stored. %1</source>
        <translation>何も保存していません。%1</translation>
    </message>
    <message>
        <source>No consoles yet. Add one with: %1</source>
        <translation>コンソールはまだありません。追加するには：%1</translation>
    </message>
    <message>
        <source>left out, its certificate changed</source>
        <translation>除外、証明書が変わりました</translation>
    </message>
    <message>
        <source>offline since %1</source>
        <translation>%1からオフライン</translation>
    </message>
    <message>
        <source>Several systems are called %1. Name one by its identifier, or its console with --console.</source>
        <translation>%1という名前のシステムが複数あります。識別子で指定するか、--consoleでコンソールを指定してください。</translation>
    </message>
    <message>
        <source>No system is called %1.</source>
        <translation>%1というシステムはありません。</translation>
    </message>
    <message>
        <source>--times takes a number from 1 on.</source>
        <translation>--timesには1以上の数を指定します。</translation>
    </message>
    <message>
        <source>watch writes lines of text, or of JSON with --json.</source>
        <translation>watchはテキストの行を、--jsonならJSONの行を出力します。</translation>
    </message>
    <message>
        <source>There are no consoles to watch.</source>
        <translation>監視するコンソールがありません。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <extracomment>%1 the day of a month, %2 the short name of the month, %3 a year</extracomment>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>Row %1: %2.</source>
        <extracomment>%1 the number of a sheet&apos;s row, %2 what is wrong with it</extracomment>
        <translation>%1行：%2。</translation>
    </message>
    <message>
        <source>The password is too long.</source>
        <translation>パスワードが長すぎます。</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Refresh This Console</source>
        <translation>このコンソールを更新</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>更新中...</translation>
    </message>
</context>
<context>
    <name>ConnectionScene</name>
    <message>
        <source>Copy all</source>
        <translation>すべてコピー</translation>
    </message>
</context>
<context>
    <name>CorvelListDelegate</name>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>要注意</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
</context>
<context>
    <name>CorvelListScene</name>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>コンソールを追加</translation>
    </message>
    <message>
        <source>Fleet Sheet</source>
        <translation>コンソール表</translation>
    </message>
    <message>
        <source>No console of your own yet.</source>
        <translation>自分のコンソールはまだありません。</translation>
    </message>
</context>
<context>
    <name>DashboardScene</name>
    <message>
        <source>Corvel Overview</source>
        <translation>Corvelの概要</translation>
    </message>
    <message>
        <source>Corvels Online</source>
        <translation>オンラインのCorvel</translation>
    </message>
    <message>
        <source>Attention LEDs</source>
        <translation>注意LED</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>サービスイベント</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>管理対象システム</translation>
    </message>
    <message>
        <source>No managed systems are known.</source>
        <translation>既知の管理対象システムはありません。</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>論理区画</translation>
    </message>
    <message>
        <source>No logical partitions are known.</source>
        <translation>既知の論理区画はありません。</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>コンソールはまだありません。</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Corvelを追加</translation>
    </message>
</context>
<context>
    <name>DeltaCorvelScene</name>
    <message>
        <source>Leave out &quot;%1&quot;.</source>
        <translation>「%1」は不要です。</translation>
    </message>
    <message>
        <source>Leave out &quot;/&quot; and what follows it.</source>
        <translation>「/」以降は不要です。</translation>
    </message>
    <message>
        <source>The address contains a blank.</source>
        <translation>アドレスに空白があります。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Host name or address</source>
        <translation>ホスト名またはアドレス</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>ユーザーID</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
</context>
<context>
    <name>DetailScene</name>
    <message>
        <source>Service report</source>
        <translation>サービスレポート</translation>
    </message>
</context>
<context>
    <name>EditMenuChoices</name>
    <message>
        <source>Edit text</source>
        <translation>テキストを編集</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>EmptyColumn</name>
    <message>
        <source>Choose what to look at.</source>
        <translation>見るものを選んでください。</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>this is the name of a folder.</source>
        <translation>これはフォルダーの名前です。</translation>
    </message>
    <message>
        <source>this is the name of a device.</source>
        <translation>これはデバイスの名前です。</translation>
    </message>
    <message>
        <source>the folder does not exist.</source>
        <translation>フォルダーがありません。</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>you may not write there.</source>
        <translation>そこには書き込めません。</translation>
    </message>
    <message>
        <source>the file is too large for the disk.</source>
        <translation>ファイルがディスクに入りません。</translation>
    </message>
    <message>
        <source>the name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>this place is not on this device.</source>
        <translation>この場所はこの端末にありません。</translation>
    </message>
    <message>
        <source>this system shows no dialogue for files.</source>
        <translation>このシステムはファイルダイアログを表示できません。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>そのファイルはありません。</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>これはファイルではありません。</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>このファイルは読めません。</translation>
    </message>
    <message>
        <source>This file is too large.</source>
        <translation>このファイルは大きすぎます。</translation>
    </message>
    <message>
        <source>This system shows no dialogue for files.</source>
        <translation>このシステムはファイルダイアログを表示できません。</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>要求は取り消されました。</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>アドレスが正しくありません。</translation>
    </message>
    <message>
        <source>No answer came in time. Check the network.</source>
        <translation>時間内に応答がありません。ネットワークを確認してください。</translation>
    </message>
    <message>
        <source>The name has no address. Check the spelling.</source>
        <translation>この名前にはアドレスがありません。つづりを確認してください。</translation>
    </message>
    <message>
        <source>This address cannot be reached.</source>
        <translation>このアドレスに接続できません。</translation>
    </message>
    <message>
        <source>The connection broke off. Try again.</source>
        <translation>接続が切れました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The answer was not understood.</source>
        <translation>応答を理解できませんでした。</translation>
    </message>
    <message>
        <source>The answer is larger than Lodestar takes.</source>
        <translation>応答がLodestarの上限を超えています。</translation>
    </message>
    <message>
        <source>No secure connection can be made.</source>
        <translation>安全な接続を確立できません。</translation>
    </message>
    <message>
        <source>The certificate is not trusted.</source>
        <translation>証明書は信頼されていません。</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>要求に失敗しました。</translation>
    </message>
    <message>
        <source>The console did not accept user or password.</source>
        <translation>コンソールがユーザーまたはパスワードを拒否しました。</translation>
    </message>
    <message>
        <source>The console has an error. Try again.</source>
        <translation>コンソールにエラーがあります。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The address does not answer as a console.</source>
        <translation>このアドレスはコンソールとして応答しません。</translation>
    </message>
</context>
<context>
    <name>EventBars</name>
    <message>
        <source>New Events a Day</source>
        <translation>1日の新規イベント</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln日</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EventOrderScene</name>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>未解決</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>コールホーム</translation>
    </message>
</context>
<context>
    <name>FeedListScene</name>
    <message>
        <source>Search results</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>見つかりません。</translation>
    </message>
</context>
<context>
    <name>FeedListViewController</name>
    <message>
        <source>Logical Partitions</source>
        <translation>論理区画</translation>
    </message>
    <message>
        <source>Partitions could not be loaded. Refresh to try again.</source>
        <translation>区画を読み込めませんでした。更新してもう一度お試しください。</translation>
    </message>
    <message>
        <source>There are no partitions here.</source>
        <translation>ここに区画はありません。</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>管理対象システム</translation>
    </message>
    <message>
        <source>Managed systems could not be loaded. Refresh to try again.</source>
        <translation>管理対象システムを読み込めませんでした。更新してもう一度お試しください。</translation>
    </message>
    <message>
        <source>This console manages no systems.</source>
        <translation>このコンソールが管理するシステムはありません。</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>リソースグループ</translation>
    </message>
    <message>
        <source>Resource groups could not be loaded. Refresh to try again.</source>
        <translation>リソースグループを読み込めませんでした。更新してもう一度お試しください。</translation>
    </message>
    <message>
        <source>This console has no resource groups.</source>
        <translation>このコンソールにリソースグループはありません。</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>サービスイベント</translation>
    </message>
    <message>
        <source>Serviceable events could not be loaded. Refresh to try again.</source>
        <translation>サービスイベントを読み込めませんでした。更新してもう一度お試しください。</translation>
    </message>
    <message>
        <source>This console has no serviceable events.</source>
        <translation>このコンソールにサービスイベントはありません。</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>仮想I/Oサーバー</translation>
    </message>
    <message>
        <source>Virtual servers could not be loaded. Refresh to try again.</source>
        <translation>仮想サーバーを読み込めませんでした。更新してもう一度お試しください。</translation>
    </message>
    <message>
        <source>Nothing in sight</source>
        <translation>何もありません</translation>
    </message>
    <message>
        <source>There are no virtual servers here.</source>
        <translation>ここに仮想サーバーはありません。</translation>
    </message>
</context>
<context>
    <name>FeedbackLayer</name>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
</context>
<context>
    <name>FeedbackScene</name>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
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
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Picture of the screen, to draw on</source>
        <translation>書き込める画面の画像</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>ペン</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>What happened?</source>
        <translation>何が起きましたか？</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it.</source>
        <translation>画像を表示する前にアドレスを隠します。パスワードは決して含まれません。</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it. The report stays on this device.</source>
        <translation>画像を表示する前にアドレスを隠します。パスワードは決して含まれません。レポートはこの端末に残ります。</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>送信される内容</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>保存される内容</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>レポート</translation>
    </message>
</context>
<context>
    <name>FilePicker</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>FindButton</name>
    <message>
        <source>Find anywhere</source>
        <translation>どこでも検索</translation>
    </message>
</context>
<context>
    <name>FindScene</name>
    <message>
        <source>Find on all consoles</source>
        <translation>すべて検索</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>No consoles yet.</source>
        <translation>コンソールはまだありません。</translation>
    </message>
    <message>
        <source>Look at the Demo First</source>
        <translation>まずデモを見る</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>Give the address, user and password of one. Lodestar only reads; nothing on a console is ever changed.</source>
        <translation>コンソールのアドレス、ユーザー、パスワードを入力してください。Lodestarは読むだけで、コンソールを変更することはありません。</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Corvelを追加</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>コンソール表を取り込む</translation>
    </message>
</context>
<context>
    <name>FleetAgainScene</name>
    <message>
        <source>Verify</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>A field that stays empty keeps its password.</source>
        <translation>空の欄は元のパスワードを保ちます。</translation>
    </message>
</context>
<context>
    <name>FleetChooseScene</name>
    <message>
        <source>In this sheet</source>
        <translation>この表の内容</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Registered already, left alone</source>
        <translation>登録済み、変更しません</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>使えません</translation>
    </message>
    <message>
        <source>Passwords, one a user</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Passwords are never read from a sheet nor written to one.</source>
        <translation>パスワードを表から読むことも、表に書くこともありません。</translation>
    </message>
    <message>
        <source>Nothing is added before all of them were tried.</source>
        <translation>すべて試すまで何も追加しません。</translation>
    </message>
</context>
<context>
    <name>FleetEventsBar</name>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>FleetEventsContent</name>
    <message>
        <source>Search results</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>見つかりません。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
</context>
<context>
    <name>FleetEventsHeader</name>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
</context>
<context>
    <name>FleetPasswordCard</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Show More Users</source>
        <translation>他のユーザーを表示</translation>
    </message>
</context>
<context>
    <name>FleetSheetScene</name>
    <message>
        <source>Import Consoles from a Sheet</source>
        <translation>表からコンソールを取り込む</translation>
    </message>
    <message>
        <source>A sheet is a CSV file with a first line, for example:</source>
        <translation>表は見出し行のあるCSVファイルです。例：</translation>
    </message>
    <message>
        <source>Passwords are asked once a user. They are never read from a sheet nor written to one.</source>
        <translation>パスワードはユーザーごとに1回尋ねます。表から読むことも、表に書くこともありません。</translation>
    </message>
    <message>
        <source>Look at the Demo</source>
        <translation>デモを見る</translation>
    </message>
    <message>
        <source>A console that is part of Lodestar. It needs no network.</source>
        <translation>Lodestarに含まれるコンソールです。ネットワークは要りません。</translation>
    </message>
</context>
<context>
    <name>FleetVerifyHeader</name>
    <message>
        <source>Verified</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
</context>
<context>
    <name>FleetVerifyScene</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>FoldedListScene</name>
    <message>
        <source>Nothing left to show</source>
        <translation>表示するものがなくなりました</translation>
    </message>
</context>
<context>
    <name>IntroView</name>
    <message>
        <source>Every console, one list</source>
        <translation>すべてのコンソールを一つの一覧に</translation>
    </message>
    <message>
        <source>Health, attention LEDs and events of your whole fleet, refreshed with one pull.</source>
        <translation>すべてのコンソールの状態、注意LED、イベントを、一度引くだけで更新します。</translation>
    </message>
    <message>
        <source>The sum of it all</source>
        <translation>全体のまとめ</translation>
    </message>
    <message>
        <source>The dashboard adds up managed systems and partitions by their state.</source>
        <translation>ダッシュボードは管理対象システムと区画を状態ごとに集計します。</translation>
    </message>
    <message>
        <source>Every managed system</source>
        <translation>すべての管理対象システム</translation>
    </message>
    <message>
        <source>Find a system by name. Badges tell errors and lit attention LEDs.</source>
        <translation>名前でシステムを探せます。バッジはエラーと点灯中の注意LEDを示します。</translation>
    </message>
    <message>
        <source>Down to the partition</source>
        <translation>区画まで</translation>
    </message>
    <message>
        <source>Partitions and virtual I/O servers stand under the system that runs them.</source>
        <translation>区画と仮想I/Oサーバーは、それを動かすシステムの下に並びます。</translation>
    </message>
    <message>
        <source>Load over time</source>
        <translation>負荷の推移</translation>
    </message>
    <message>
        <source>Processors and memory of a system, total, allocated and used, as lines.</source>
        <translation>システムのプロセッサーとメモリーの合計、割り当て、使用を線で示します。</translation>
    </message>
    <message>
        <source>Behind a passcode</source>
        <translation>パスコードで保護</translation>
    </message>
    <message>
        <source>Lock Lodestar if you like. It reads only and changes nothing on a console.</source>
        <translation>必要ならLodestarをロックできます。読むだけで、コンソールは変更しません。</translation>
    </message>
</context>
<context>
    <name>KeySheetScene</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Find a command</source>
        <translation>コマンドを検索</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Save list as CSV</source>
        <translation>一覧をCSVで保存</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>点をCSVで保存</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>値をコピー</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>すべてコピー</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Keyboard help</source>
        <translation>キーボードヘルプ</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next or previous control</source>
        <translation>次または前の操作部品</translation>
    </message>
    <message>
        <source>Next or previous row</source>
        <translation>次または前の行</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>1ページ上または下</translation>
    </message>
    <message>
        <source>First or last row</source>
        <translation>最初または最後の行</translation>
    </message>
    <message>
        <source>Open the row</source>
        <translation>行を開く</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>行のメニュー</translation>
    </message>
    <message>
        <source>Buttons of the row</source>
        <translation>行のボタン</translation>
    </message>
    <message>
        <source>Step along the chart</source>
        <translation>グラフに沿って進む</translation>
    </message>
    <message>
        <source>Enlarge or shrink</source>
        <translation>拡大または縮小</translation>
    </message>
    <message>
        <source>The whole chart</source>
        <translation>グラフ全体</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>コンソールを追加</translation>
    </message>
    <message>
        <source>Find anywhere</source>
        <translation>どこでも検索</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
    <message>
        <source>Corvels</source>
        <translation>Corvel</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>要注意</translation>
    </message>
    <message>
        <source>The other column</source>
        <translation>もう一方の列</translation>
    </message>
    <message>
        <source>First or last value</source>
        <translation>最初または最後の値</translation>
    </message>
    <message>
        <source>Move the enlarged chart</source>
        <translation>拡大したグラフを動かす</translation>
    </message>
</context>
<context>
    <name>KeychainWait</name>
    <message>
        <source>Waiting for the system&apos;s keychain...</source>
        <translation>システムのキーチェーンを待っています...</translation>
    </message>
</context>
<context>
    <name>LargeChartScene</name>
    <message>
        <source>Performance Monitoring</source>
        <translation>パフォーマンス監視</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>プロセッサー</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>指標</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>棒</translation>
    </message>
    <message>
        <source>Allocated as bars</source>
        <translation>割り当てを棒で表示</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
</context>
<context>
    <name>ListShareButton</name>
    <message>
        <source>Save list as CSV</source>
        <translation>一覧をCSVで保存</translation>
    </message>
</context>
<context>
    <name>LoginScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Reset Passcode and Erase All Data</source>
        <translation>パスコードをリセットし全データを消去</translation>
    </message>
</context>
<context>
    <name>MCScene</name>
    <message>
        <source>This console has told nothing of itself.</source>
        <translation>このコンソールは自身の情報を返しませんでした。</translation>
    </message>
</context>
<context>
    <name>MainStoryboard</name>
    <message>
        <source>Corvels</source>
        <translation>Corvel</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>要注意</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>PCMScene</name>
    <message>
        <source>units</source>
        <translation>ユニット</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>パフォーマンス監視</translation>
    </message>
    <message>
        <source>Large Chart</source>
        <translation>大きなグラフ</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>プロセッサー</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>指標</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>割り当て</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用</translation>
    </message>
</context>
<context>
    <name>PageControl</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>%2ページ中%1ページ</translation>
    </message>
</context>
<context>
    <name>PagedIntroView</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
</context>
<context>
    <name>Passcode</name>
    <message>
        <source>The system&apos;s keychain is locked</source>
        <translation>システムのキーチェーンがロックされています</translation>
    </message>
    <message>
        <source>No keychain is running on this system</source>
        <translation>このシステムではキーチェーンが動いていません</translation>
    </message>
    <message>
        <source>The system&apos;s keychain does not answer</source>
        <translation>システムのキーチェーンが応答しません</translation>
    </message>
    <message>
        <source>The system&apos;s keychain cannot keep this text</source>
        <translation>システムのキーチェーンはこのテキストを保存できません</translation>
    </message>
    <message>
        <source>The system&apos;s keychain reported an error</source>
        <translation>システムのキーチェーンがエラーを報告しました</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain was locked.</source>
        <translation>パスコードは今後尋ねません：システムのキーチェーンがロックされていました。</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: no keychain was running.</source>
        <translation>パスコードは今後尋ねません：キーチェーンが動いていませんでした。</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain did not answer.</source>
        <translation>パスコードは今後尋ねません：システムのキーチェーンが応答しませんでした。</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain could not be read.</source>
        <translation>パスコードは今後尋ねません：システムのキーチェーンを読めませんでした。</translation>
    </message>
</context>
<context>
    <name>PasswordCreationScene</name>
    <message>
        <source>Old passcode</source>
        <translation>現在のパスコード</translation>
    </message>
    <message>
        <source>New passcode</source>
        <translation>新しいパスコード</translation>
    </message>
    <message>
        <source>Verify passcode</source>
        <translation>パスコードの確認</translation>
    </message>
</context>
<context>
    <name>PerformanceSummary</name>
    <message>
        <source>Lowest</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>最新</translation>
    </message>
</context>
<context>
    <name>PrivacyCoverScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
</context>
<context>
    <name>PullIndicatorMark</name>
    <message>
        <source>Refreshing</source>
        <translation>更新中</translation>
    </message>
    <message>
        <source>Pull to refresh</source>
        <translation>引いて更新</translation>
    </message>
</context>
<context>
    <name>PullSearchField</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>RGListDelegate</name>
    <message>
        <source>updating...</source>
        <translation>更新中...</translation>
    </message>
</context>
<context>
    <name>ReportListScene</name>
    <message>
        <source>No reports on this device.</source>
        <translation>この端末にレポートはありません。</translation>
    </message>
</context>
<context>
    <name>ReportScene</name>
    <message>
        <source>Export</source>
        <translation>書き出す</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>画面の画像</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Sending the report...</source>
        <translation>レポートを送信中...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>応答を待っています...</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Report Sent</source>
        <translation>レポートを送信しました</translation>
    </message>
    <message>
        <source>Thank you. A copy is in the list of reports.</source>
        <translation>ありがとうございます。写しはレポートの一覧にあります。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be sent</source>
        <translation>レポートを送信できませんでした</translation>
    </message>
    <message>
        <source>%1
It is kept in the list of reports.</source>
        <translation>%1
レポートの一覧に残ります。</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Crash</source>
        <translation>クラッシュ</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
</context>
<context>
    <name>SecretSwitch</name>
    <message>
        <source>Hide password</source>
        <translation>パスワードを隠す</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>パスワードを表示</translation>
    </message>
</context>
<context>
    <name>ServiceReportScene</name>
    <message>
        <source>Form of the report</source>
        <translation>レポートの形式</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Leave Out Addresses</source>
        <translation>アドレスを除く</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>ファイルに保存</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Require Passcode</source>
        <translation>パスコードを要求</translation>
    </message>
    <message>
        <source>Change Passcode</source>
        <translation>パスコードを変更</translation>
    </message>
    <message>
        <source>Intro Tour</source>
        <translation>紹介ツアー</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Open Source Licenses</source>
        <translation>オープンソースライセンス</translation>
    </message>
    <message>
        <source>Ornis License</source>
        <translation>Ornisライセンス</translation>
    </message>
</context>
<context>
    <name>SheetContent</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Loading</source>
        <translation>読み込み中</translation>
    </message>
</context>
<context>
    <name>StateBars</name>
    <message>
        <source>Partitions by State</source>
        <translation>状態別の区画</translation>
    </message>
    <message>
        <source>and since yesterday</source>
        <translation>昨日からの変化</translation>
    </message>
</context>
<context>
    <name>SwipeButtons</name>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
</context>
<context>
    <name>TabBar</name>
    <message>
        <source>Screens</source>
        <translation>画面</translation>
    </message>
</context>
<context>
    <name>WatchConsoleDelegate</name>
    <message>
        <source>watched</source>
        <translation>監視中</translation>
    </message>
    <message>
        <source>not watched</source>
        <translation>監視なし</translation>
    </message>
</context>
<context>
    <name>WatchScene</name>
    <message>
        <source>Watch While Lodestar Runs</source>
        <translation>Lodestarの実行中に監視</translation>
    </message>
    <message>
        <source>Reads every console again by itself and tells you what changed. It stops when Lodestar is closed.</source>
        <translation>すべてのコンソールを自動で読み直し、変化を知らせます。Lodestarを閉じると止まります。</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Tell me</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>When Something Gets Worse</source>
        <translation>悪化したとき</translation>
    </message>
    <message>
        <source>When It Gets Better Again</source>
        <translation>再び改善したとき</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>新規イベント</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>Quiet Hours</source>
        <translation>通知しない時間</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Send a Test Message</source>
        <translation>テスト通知を送る</translation>
    </message>
    <message>
        <source>At most one message a refresh. Names, addresses and texts stay out of it while a passcode is required.</source>
        <translation>更新ごとに通知は1件までです。パスコードを要求している間は、名前、アドレス、本文を含みません。</translation>
    </message>
</context>
<context>
    <name>WatchTimeRow</name>
    <message>
        <source>Left and right change the time.</source>
        <translation>左右で時刻を変えます。</translation>
    </message>
    <message>
        <source>%1, earlier</source>
        <translation>%1を早める</translation>
    </message>
    <message>
        <source>%1, later</source>
        <translation>%1を遅らせる</translation>
    </message>
</context>
<context>
    <name>lodestar::AgeText</name>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 a day as in &quot;yesterday&quot; or &quot;Mon&quot;, %2 a time of day</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>今日、%1</translation>
    </message>
    <message>
        <source>since %1</source>
        <extracomment>%1 as in &quot;09:41&quot;, &quot;yesterday 21:40&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>%1から</translation>
    </message>
    <message>
        <source>at least since %1</source>
        <translation>少なくとも%1から</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>読み取り：%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min ago</source>
        <translation>
            <numerusform>%Ln分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read %Ln h ago</source>
        <translation>
            <numerusform>%Ln時間前に読取</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionFilterController</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message numerus="yes">
        <source>All %Ln consoles</source>
        <translation>
            <numerusform>全コンソール（%Ln台）</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionNowController</name>
    <message>
        <source>Nothing needs attention</source>
        <translation>注意すべきものはありません</translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>分かる範囲で注意すべきものはありません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <extracomment>%1 a number of rows</extracomment>
        <translation>%1件をすべて表示</translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionViewController</name>
    <message>
        <source>99+</source>
        <extracomment>%1 the name of a tab</extracomment>
        <translation>99+</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln things</source>
        <translation>
            <numerusform>%1、%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>要注意</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: the tab &quot;Attention&quot; and what of it</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>lodestar::BarButtonOutlet</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>lodestar::ChangeText</name>
    <message>
        <source>#%1 opened</source>
        <translation>#%1 発生</translation>
    </message>
    <message>
        <source>#%1 gone</source>
        <translation>#%1 消失</translation>
    </message>
    <message>
        <source>#%1</source>
        <translation>#%1</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED点灯</translation>
    </message>
    <message>
        <source>LED off</source>
        <translation>LED消灯</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>Online again after %1</source>
        <translation>%1後に再びオンライン</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <translation>%1を読めません</translation>
    </message>
    <message>
        <source>%1 read again</source>
        <translation>%1を再び読み取り</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>なくなりました</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>証明書が変わりました</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>A state before and after.</extracomment>
        <translation>%1から%2へ</translation>
    </message>
    <message>
        <source>worse</source>
        <translation>悪化</translation>
    </message>
    <message>
        <source>better</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>コンソール%Ln台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events opened</source>
        <translation>
            <numerusform>イベント%Ln件発生</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events gone</source>
        <translation>
            <numerusform>イベント%Ln件消失</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>システム%Ln台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>I/Oサーバー%Ln台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>グループ%Ln個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>イベント%Ln件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>区画%Ln個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln日</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln時間</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ChangesViewController</name>
    <message>
        <source>Changes</source>
        <translation>変化</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>表示するものがなくなりました</translation>
    </message>
    <message>
        <source>Nothing changed in 30 days.</source>
        <translation>30日間、変化はありません。</translation>
    </message>
    <message>
        <source>Changes show after the second reading.</source>
        <translation>変化は2回目の読み取りから表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more changes are not shown.</source>
        <translation>
            <numerusform>ほかに%Ln件の変化は表示していません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Older changes were left out</source>
        <translation>古い変化は省かれました</translation>
    </message>
    <message>
        <source>What changed before could not be read. The damaged file was set aside.</source>
        <translation>以前の変化を読めませんでした。壊れたファイルは別に保存しました。</translation>
    </message>
</context>
<context>
    <name>lodestar::Clipboard</name>
    <message>
        <source>Could not be copied: the clipboard is in use by another program.</source>
        <translation>コピーできません：クリップボードを別のプログラムが使っています。</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <extracomment>%1 what was copied</extracomment>
        <translation>%1をコピーしました</translation>
    </message>
</context>
<context>
    <name>lodestar::Commands</name>
    <message>
        <source>Watch</source>
        <translation>監視</translation>
    </message>
    <message>
        <source>Fleet sheet</source>
        <translation>コンソール表</translation>
    </message>
    <message>
        <source>Intro tour</source>
        <translation>紹介ツアー</translation>
    </message>
    <message>
        <source>Bring back the demo</source>
        <translation>デモを戻す</translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionContent</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 dates</extracomment>
        <translation>%1〜%2</translation>
    </message>
    <message>
        <source>%1, ended %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1、%2に終了</translation>
    </message>
    <message>
        <source>%1, begins %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1、%2に開始</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>%1 as in &quot;today, 02:58&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>%1に変更</translation>
    </message>
    <message>
        <source>seen for the first time</source>
        <translation>初めて確認</translation>
    </message>
    <message>
        <source>unchanged since %1</source>
        <translation>%1から変わりなし</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>変わりなし</translation>
    </message>
    <message>
        <source>The new one is neither vouched for by this device’s authorities nor the one shown at the session check.</source>
        <translation>新しい証明書は、この端末の認証局が保証するものでも、セッション確認で示されたものでもありません。</translation>
    </message>
    <message>
        <source>Vouched for by this device’s authorities.</source>
        <translation>この端末の認証局が保証しています。</translation>
    </message>
    <message>
        <source>Not vouched for by this device’s authorities. Consoles sign their own, so Lodestar takes what it is shown and says here when it changes.</source>
        <translation>この端末の認証局は保証していません。コンソールは自己署名の証明書を使うため、Lodestarは示されたものを受け入れ、変わったときにここで知らせます。</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>証明書</translation>
    </message>
    <message>
        <source>At the logon, new</source>
        <translation>ログオン時、新規</translation>
    </message>
    <message>
        <source>At the session check, known since %1</source>
        <translation>セッション確認時、%1から既知</translation>
    </message>
    <message>
        <source>At the session check</source>
        <translation>セッション確認時</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>所有者</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>発行者</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>自己署名</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有効期間</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint</source>
        <translation>SHA-256フィンガープリント</translation>
    </message>
    <message>
        <source>Compared with last time</source>
        <translation>前回との比較</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>信頼</translation>
    </message>
    <message>
        <source>The rest was read %1.</source>
        <extracomment>%1 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>残りは%1に読み取りました。</translation>
    </message>
    <message>
        <source>The rest was read just now.</source>
        <translation>残りはたった今読み取りました。</translation>
    </message>
    <message>
        <source>Nothing of it could be read.</source>
        <translation>何も読めませんでした。</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <extracomment>%1 names of feeds, as in &quot;Partitions and resource groups&quot;</extracomment>
        <translation>%1を読めませんでした。</translation>
    </message>
    <message>
        <source>Not tried yet</source>
        <translation>未試行</translation>
    </message>
    <message>
        <source>Offline since %1</source>
        <extracomment>%1 as in &quot;02:58&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1からオフライン</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>オンライン</translation>
    </message>
    <message>
        <source>Everything was read %1, in %2.</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;at 09:41&quot;, %2 a time in seconds</extracomment>
        <translation>すべて読み取りました（%1、%2）。</translation>
    </message>
    <message>
        <source>What to try</source>
        <translation>試すこと</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>前回の成功</translation>
    </message>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>%1 as in &quot;today, 02:43&quot;, %2 a time in seconds</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Read in full</source>
        <translation>完全に読み取り</translation>
    </message>
    <message>
        <source>Version then</source>
        <translation>当時のバージョン</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Session check</source>
        <translation>セッション確認</translation>
    </message>
    <message>
        <source>session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Logon</source>
        <translation>ログオン</translation>
    </message>
    <message>
        <source>logon</source>
        <translation>ログオン</translation>
    </message>
    <message>
        <source>Six feeds</source>
        <translation>6つのフィード</translation>
    </message>
    <message>
        <source>feeds</source>
        <translation>フィード</translation>
    </message>
    <message>
        <source>certificate as before</source>
        <translation>証明書は前回と同じ</translation>
    </message>
    <message>
        <source>first contact</source>
        <translation>初回接続</translation>
    </message>
    <message>
        <source>certificate changed</source>
        <translation>証明書が変わった</translation>
    </message>
    <message>
        <source>address given</source>
        <translation>アドレス指定</translation>
    </message>
    <message>
        <source>port 12443</source>
        <translation>ポート12443</translation>
    </message>
    <message>
        <source>%1, key accepted</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1、キー受理</translation>
    </message>
    <message>
        <source>%1, key ended</source>
        <translation>%1、キー失効</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 a reason, %2 a number such as -1202 or 401</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Not the certificate of the session check</source>
        <translation>セッション確認の証明書ではありません</translation>
    </message>
    <message>
        <source>no key yet</source>
        <translation>キーはまだありません</translation>
    </message>
    <message>
        <source>not needed</source>
        <translation>不要</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>未到達</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>管理コンソール</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>管理対象システム</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>仮想I/Oサーバー</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>論理区画</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>サービスイベント</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>リソースグループ</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, the console failed to answer</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1、コンソールは応答できませんでした</translation>
    </message>
    <message>
        <source>%1 were last read %2</source>
        <extracomment>%1 the name of a feed, %2 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1の前回の読み取りは%2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <extracomment>%1 the same for another feed, which %2 and %3 add</extracomment>
        <translation>%1、%2は%3</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 a sentence that lacks its end</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>at %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>%1</translation>
    </message>
    <message>
        <source>Last attempt</source>
        <translation>前回の試行</translation>
    </message>
    <message>
        <source>Feeds</source>
        <translation>フィード</translation>
    </message>
    <message>
        <source>%1 of 6</source>
        <extracomment>%1 how many of the six feeds were read</extracomment>
        <translation>6件中%1件</translation>
    </message>
    <message numerus="yes">
        <source>The rest is %Ln min old.</source>
        <translation>
            <numerusform>残りは%Ln分前のものです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Online, %Ln of 6 feeds missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>オンライン、6フィード中%Ln件欠落</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Lnバイト</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>no answer within %Ln s</source>
        <translation>
            <numerusform>%Ln秒以内に応答なし</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionViewController</name>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListCell</name>
    <message>
        <source>N/A</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>%1, updating</source>
        <extracomment>A console in the list, read aloud while it is being fetched: %1 its name</extracomment>
        <translation>%1、更新中</translation>
    </message>
    <message>
        <source>%1, %2, attention %3, events %4</source>
        <extracomment>A console in the list, read aloud: %1 name, %2 status word, %3 and %4 counts</extracomment>
        <translation>%1、%2、注意%3、イベント%4</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListViewController</name>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>My Corvels</source>
        <translation>マイCorvel</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelMenu</name>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>要注意</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>アドレスをコピー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelOverviewTableViewController</name>
    <message>
        <source>not loaded</source>
        <translation>未読み込み</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>管理対象システム</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>仮想I/Oサーバー</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>論理区画</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>リソースグループ</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>サービスイベント</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>管理コンソール</translation>
    </message>
</context>
<context>
    <name>lodestar::DBusMessageService</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardBars</name>
    <message>
        <source>%1 since yesterday</source>
        <translation>昨日から%1</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardMarks</name>
    <message>
        <source>missing from %1 of %2</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>%2台中%1台で欠落</translation>
    </message>
    <message>
        <source>%1 of %2 answered in full</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>%2台中%1台が完全に応答</translation>
    </message>
    <message>
        <source>Read %1.</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1に読み取り。</translation>
    </message>
    <message>
        <source>Read %1 to %2.</source>
        <translation>%1〜%2に読み取り。</translation>
    </message>
    <message numerus="yes">
        <source>Next in %Ln min.</source>
        <translation>
            <numerusform>次は%Ln分後。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardTableViewController</name>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>%1を待っています</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %1 of %Ln consoles</source>
        <translation>
            <numerusform>コンソール%Ln台中%1台を待っています</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DayBarsOutlet</name>
    <message>
        <source>today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Worse, above</source>
        <translation>悪化（上）</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>改善（下）</translation>
    </message>
    <message>
        <source>%1 %2 worse, %3 better</source>
        <extracomment>A day, and what a chart tells of it.</extracomment>
        <translation>%1 悪化%2、改善%3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A day, and its number of new events.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>New Events a Day</source>
        <translation>1日の新規イベント</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days, %1</source>
        <extracomment>How many days a chart has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%Ln日、%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln days, %2</source>
        <extracomment>A chart&apos;s name, how many days it has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%1、%Ln日、%2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DeltaCorvelViewController</name>
    <message>
        <source>Add Corvel</source>
        <translation>Corvelを追加</translation>
    </message>
    <message>
        <source>Edit Corvel</source>
        <translation>Corvelを編集</translation>
    </message>
    <message>
        <source>verifying...</source>
        <translation>確認中...</translation>
    </message>
    <message>
        <source>Please enter all fields</source>
        <translation>すべての欄に入力してください</translation>
    </message>
    <message>
        <source>Corvel has already been added</source>
        <translation>このCorvelは追加済みです</translation>
    </message>
    <message>
        <source>gathering data...</source>
        <translation>データを収集中...</translation>
    </message>
</context>
<context>
    <name>lodestar::DetailViewController</name>
    <message>
        <source>Serial Number</source>
        <translation>製造番号</translation>
    </message>
    <message>
        <source>Machine Type</source>
        <translation>マシンタイプ</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>値をコピー</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>すべてコピー</translation>
    </message>
    <message>
        <source>Find on All Consoles</source>
        <translation>すべてのコンソールで検索</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::EventOrderViewController</name>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>As the console sends them</source>
        <translation>コンソールが送る順</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>新しい順</translation>
    </message>
    <message>
        <source>By status</source>
        <translation>状態順</translation>
    </message>
    <message>
        <source>By reference code</source>
        <translation>参照コード順</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedListViewController</name>
    <message>
        <source>updating...</source>
        <translation>更新中...</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what is listed, such as &quot;Managed Systems&quot;, and a console&apos;s name</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedName</name>
    <message>
        <source>console details</source>
        <translation>コンソール情報</translation>
    </message>
    <message>
        <source>Console details</source>
        <translation>コンソール情報</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>I/Oサーバー</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>区画</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>区画</translation>
    </message>
    <message>
        <source>events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>resource groups</source>
        <translation>リソースグループ</translation>
    </message>
    <message>
        <source>Resource groups</source>
        <translation>リソースグループ</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <extracomment>%1 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1を読めません</translation>
    </message>
    <message>
        <source>%1 and %2 not read</source>
        <extracomment>%1 and %2 names of feeds, as in &quot;Partitions&quot; and &quot;groups&quot;</extracomment>
        <translation>%1と%2を読めません</translation>
    </message>
    <message>
        <source>Nothing of it could be read</source>
        <translation>何も読めませんでした</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message>
        <source>%1, %2 and %3</source>
        <translation>%1、%2、%3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 feeds not read</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>6フィード中%Ln件を読めません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <extracomment>%1 and %2 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1、%2ほか%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>I/Oサーバー</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackHost</name>
    <message>
        <source>Keep</source>
        <translation>保管</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Lodestar ended unexpectedly</source>
        <translation>Lodestarは予期せず終了しました</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.</source>
        <translation>
            <numerusform>この端末にレポートが%Ln件できました。パスワードは含まず、自動ではどこにも送られません。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackViewController</name>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
    <message>
        <source>Discard this feedback?</source>
        <translation>このフィードバックを破棄しますか？</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>編集を続ける</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>レポートを保存しました</translation>
    </message>
    <message>
        <source>It is in the list of reports on this device.</source>
        <translation>この端末のレポートの一覧にあります。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>What Is Sent</source>
        <translation>送信される内容</translation>
    </message>
    <message>
        <source>What Is Saved</source>
        <translation>保存される内容</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>The report could not be saved</source>
        <translation>レポートを保存できませんでした</translation>
    </message>
</context>
<context>
    <name>lodestar::FileSaver</name>
    <message>
        <source>Could not be saved: %1</source>
        <extracomment>%1 a reason, such as &quot;the disk is full.&quot;</extracomment>
        <translation>保存できませんでした：%1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>%1として保存しました</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>ファイルに保存</translation>
    </message>
    <message>
        <source>There is already a file named %1.</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>%1という名前のファイルがすでにあります。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
</context>
<context>
    <name>lodestar::FindListController</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what was found, such as &quot;Managed Systems&quot;, and the text that found it</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>lodestar::FindText</name>
    <message>
        <source>Managed Systems</source>
        <translation>管理対象システム</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>仮想I/Oサーバー</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>論理区画</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>リソースグループ</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>サービスイベント</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>まだ何も読み取っていません。まず更新してください。</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1〜%2</translation>
    </message>
    <message>
        <source>%1+</source>
        <extracomment>More than can be counted at a glance</extracomment>
        <translation>%1+</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>%1件をすべて表示</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>「%1」は見つかりません</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles were searched.</source>
        <translation>
            <numerusform>コンソール%Ln台中%1台を検索しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things</source>
        <translation>
            <numerusform>%Ln件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles</source>
        <extracomment>Within &quot;2,318 things on 5 of 6 consoles, read 09:41.&quot;</extracomment>
        <translation>
            <numerusform>コンソール%Ln台中%1台</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 on %2, read %3.</source>
        <extracomment>%1 as in &quot;2,318 things&quot;, %2 as in &quot;5 of 6 consoles&quot;, %3 as in &quot;09:41&quot; or &quot;09:41 to 09:43&quot;</extracomment>
        <translation>%2に%1、%3に読み取り。</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1は読めませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%2の%1が欠けています。</translation>
    </message>
</context>
<context>
    <name>lodestar::FindViewController</name>
    <message>
        <source>Names</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>helios-03, vios-harbour-2b, Ledger production</source>
        <translation>helios-03, vios-harbour-2b, Ledger production</translation>
    </message>
    <message>
        <source>Addresses and serials</source>
        <translation>アドレスと製造番号</translation>
    </message>
    <message>
        <source>192.0.2.63, corvel-b, 06A17C2, 4210</source>
        <translation>192.0.2.63, corvel-b, 06A17C2, 4210</translation>
    </message>
    <message>
        <source>Reference codes</source>
        <translation>参照コード</translation>
    </message>
    <message>
        <source>X417-2208, or just X417</source>
        <translation>X417-2208、または単にX417</translation>
    </message>
    <message>
        <source>Event numbers and texts</source>
        <translation>イベントの番号と本文</translation>
    </message>
    <message>
        <source>#1042, power supply</source>
        <translation>#1042, power supply</translation>
    </message>
    <message>
        <source>Find on all consoles</source>
        <translation>すべてのコンソールで検索</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近の検索</translation>
    </message>
    <message>
        <source>What can be found</source>
        <translation>検索できるもの</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingRows</name>
    <message>
        <source>Expected</source>
        <translation>想定内</translation>
    </message>
    <message>
        <source>Marked as expected until it runs again</source>
        <translation>再び動くまで想定内とします</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A sentence and a further part of it: &quot;System in error&quot; and &quot;X417-2208&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>停止、%1まで稼働</translation>
    </message>
    <message>
        <source>IO server stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>I/Oサーバー停止、%1まで稼働</translation>
    </message>
    <message>
        <source>Partition stopped, ran until %1</source>
        <translation>区画停止、%1まで稼働</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>コールホーム</translation>
    </message>
    <message>
        <source>System incomplete</source>
        <translation>システム不完全</translation>
    </message>
    <message>
        <source>System in error</source>
        <translation>システムエラー</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED点灯</translation>
    </message>
    <message>
        <source>IO server in error</source>
        <translation>I/Oサーバーエラー</translation>
    </message>
    <message>
        <source>Partition in error</source>
        <translation>区画エラー</translation>
    </message>
    <message>
        <source>Offline, %1</source>
        <extracomment>%1 why, as in &quot;connection refused&quot;</extracomment>
        <translation>オフライン、%1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>LED on, system %1</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>LED点灯、システム%1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln resources in error</source>
        <translation>
            <numerusform>リソース%Ln個中%1個がエラー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>コンソール%Ln台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>システム%Ln台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>I/Oサーバー%Ln台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>区画%Ln個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>グループ%Ln個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>イベント%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>In error on %1</source>
        <extracomment>%1 the name of a system</extracomment>
        <translation>%1でエラー</translation>
    </message>
    <message>
        <source>system incomplete</source>
        <translation>システム不完全</translation>
    </message>
    <message>
        <source>system in error</source>
        <translation>システムエラー</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>注意LED点灯</translation>
    </message>
    <message>
        <source>system %1</source>
        <translation>システム%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things need attention</source>
        <translation>
            <numerusform>要注意%Ln件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events are open</source>
        <translation>
            <numerusform>未解決のイベント%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>No faults</source>
        <translation>障害なし</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles answered in full</source>
        <translation>
            <numerusform>コンソール%Ln台中%1台が完全に応答</numerusform>
        </translation>
    </message>
    <message>
        <source>updating... %1 of %2</source>
        <translation>更新中... %1 / %2</translation>
    </message>
    <message>
        <source>The console did not answer. What it would report is not known.</source>
        <translation>コンソールが応答しませんでした。その状況は分かりません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles did not answer. What they would report is not known.</source>
        <translation>
            <numerusform>コンソール%Ln台中%1台が応答しませんでした。その状況は分かりません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things needed attention there before.</source>
        <translation>
            <numerusform>以前はそこで%Ln件に注意が必要でした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more things are not shown.</source>
        <translation>
            <numerusform>ほかに%Ln件は表示していません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Not answering</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Open events</source>
        <translation>未解決のイベント</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>I/Oサーバー</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>区画</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>consoles</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>区画</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>events</source>
        <translation>イベント</translation>
    </message>
    <message numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln回</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>I/Oサーバー</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetAgainViewController</name>
    <message>
        <source>Passwords, one a user</source>
        <translation>パスワード</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetChooseViewController</name>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>表の取り込み</translation>
    </message>
    <message>
        <source>Name, address and user were found in its first line.</source>
        <translation>見出し行に名前、アドレス、ユーザーがありました。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Verify %Ln Consoles</source>
        <translation>
            <numerusform>コンソール%Ln台を確認</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventCell</name>
    <message>
        <source>call home</source>
        <translation>コールホーム</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventsViewController</name>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1は読めませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%2の%1が欠けています。</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>まだ何も読み取っていません。まず更新してください。</translation>
    </message>
    <message>
        <source>No serviceable events.</source>
        <translation>サービスイベントはありません。</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>表示するものがなくなりました</translation>
    </message>
    <message>
        <source>open</source>
        <translation>未解決</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>コールホーム</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <extracomment>What is chosen, how many events that are, and how many there are.</extracomment>
        <translation>%1：%3件中%2件</translation>
    </message>
    <message>
        <source>no reference code</source>
        <translation>参照コードなし</translation>
    </message>
    <message>
        <source>no status</source>
        <translation>状態なし</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetFile</name>
    <message>
        <source>CSV files (*.csv *.txt *.tsv)</source>
        <extracomment>the files that a dialogue shows; what stands in brackets stays</extracomment>
        <translation>CSVファイル (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>コンソール表を取り込む</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetText</name>
    <message>
        <source>“%1”</source>
        <extracomment>%1 a name</extracomment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <extracomment>%1 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1ほか%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1と%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>コンソール%Ln台</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no first line with name, address and user.</source>
        <translation>名前、アドレス、ユーザーの見出し行がありません。</translation>
    </message>
    <message>
        <source>This file is too large for a fleet sheet.</source>
        <translation>このファイルはコンソール表には大きすぎます。</translation>
    </message>
    <message>
        <source>This is not a CSV file.</source>
        <translation>これはCSVファイルではありません。</translation>
    </message>
    <message numerus="yes">
        <source>Passwords are never read from a sheet: %1 are left out.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>
            <numerusform>パスワードは表から読みません：%1は省かれます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Not used: %1.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>未使用：%1。</translation>
    </message>
    <message>
        <source>Row %1: no address</source>
        <translation>%1行：アドレスなし</translation>
    </message>
    <message>
        <source>Row %1: no user</source>
        <translation>%1行：ユーザーなし</translation>
    </message>
    <message>
        <source>Row %1: the same address as row %2</source>
        <translation>%1行：%2行と同じアドレス</translation>
    </message>
    <message>
        <source>Row %1: not an address</source>
        <translation>%1行：アドレスではありません</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>確認中</translation>
    </message>
    <message>
        <source>gathering</source>
        <translation>収集中</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>アドレスなし</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>tried</source>
        <translation>試行済み</translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln s left</source>
        <translation>
            <numerusform>試行済み、残り約%Ln秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln min left</source>
        <translation>
            <numerusform>試行済み、残り約%Ln分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <translation>
            <numerusform>6件中%Ln件欠落</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetViewController</name>
    <message>
        <source>Fleet Sheet</source>
        <translation>コンソール表</translation>
    </message>
    <message numerus="yes">
        <source>Export %Ln Consoles</source>
        <translation>
            <numerusform>コンソール%Ln台を書き出す</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetUnusableViewController</name>
    <message>
        <source>Cannot be used</source>
        <translation>使えません</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetVerifyViewController</name>
    <message>
        <source>Verifying</source>
        <translation>確認中</translation>
    </message>
    <message>
        <source>Stopped. Nothing was added.</source>
        <translation>停止しました。何も追加していません。</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>表の取り込み</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>%1 a number of so many</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>verified and ready to be added</source>
        <translation>確認済み、追加できます</translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln Consoles</source>
        <translation>
            <numerusform>コンソール%Ln台を追加</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %Ln are added together, or none.</source>
        <translation>
            <numerusform>%Ln台をまとめて追加するか、一つも追加しません。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 verified and ready to be added</source>
        <translation>%2台中%1台を確認済み、追加できます</translation>
    </message>
    <message>
        <source>%1 of %2 tried</source>
        <translation>%2台中%1台を試行</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>Not added</source>
        <translation>追加なし</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>Show %1 More</source>
        <translation>さらに%1件を表示</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>%1件をすべて表示</translation>
    </message>
    <message numerus="yes">
        <source>Try These %Ln Again</source>
        <translation>
            <numerusform>この%Ln台を再試行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Save Them as a Sheet</source>
        <translation>
            <numerusform>表として保存</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing Was Added</source>
        <translation>何も追加していません</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>Added %Ln consoles</source>
        <translation>
            <numerusform>コンソール%Ln台を追加しました</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FoundFields</name>
    <message>
        <source>serial %1</source>
        <translation>製造番号%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln resources</source>
        <translation>
            <numerusform>リソース%Ln個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln in error</source>
        <extracomment>How many of a group&apos;s resources are in error, as in &quot;16 resources, 1 in error&quot;</extracomment>
        <translation>
            <numerusform>エラー%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
</context>
<context>
    <name>lodestar::GroupedListViewController</name>
    <message>
        <source>Unknown system</source>
        <translation>不明なシステム</translation>
    </message>
</context>
<context>
    <name>lodestar::KeySheetController</name>
    <message>
        <source>On this screen</source>
        <translation>この画面</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>どこでも</translation>
    </message>
    <message>
        <source>In lists</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>In charts</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
</context>
<context>
    <name>lodestar::KeyTable</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A button&apos;s tip: what the button does, and the keys that do it</extracomment>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>lodestar::LPDetailViewController</name>
    <message>
        <source>Partition Details</source>
        <translation>区画の詳細</translation>
    </message>
</context>
<context>
    <name>lodestar::LargeChartViewController</name>
    <message>
        <source>No performance data available.</source>
        <translation>パフォーマンスデータがありません。</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>点をCSVで保存</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>lodestar::ListShare</name>
    <message>
        <source>Save list as CSV</source>
        <translation>一覧をCSVで保存</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>ファイルに保存</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::LoginViewController</name>
    <message>
        <source>Passcode</source>
        <translation>パスコード</translation>
    </message>
    <message>
        <source>Login Failed</source>
        <translation>ログイン失敗</translation>
    </message>
    <message>
        <source>Incorrect Credentials</source>
        <translation>パスコードが違います</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset Application?</source>
        <translation>Lodestarをリセットしますか？</translation>
    </message>
    <message>
        <source>Resetting your password will clear all application data</source>
        <translation>パスコードをリセットすると全データが消去されます</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>lodestar::MCViewController</name>
    <message>
        <source>Main Information</source>
        <translation>基本情報</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>モデルと製造番号</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Console information could not be loaded.</source>
        <translation>コンソール情報を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>管理コンソール</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>更新中...</translation>
    </message>
    <message>
        <source>Console Data</source>
        <translation>コンソールデータ</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source>Console Name</source>
        <translation>コンソール名</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Build Level</source>
        <translation>ビルドレベル</translation>
    </message>
</context>
<context>
    <name>lodestar::MSDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>基本情報</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>モデルと製造番号</translation>
    </message>
    <message>
        <source>Processor Information</source>
        <translation>プロセッサー情報</translation>
    </message>
    <message>
        <source>Memory Information</source>
        <translation>メモリー情報</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IPアドレス</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>参照コード</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>注意LED点灯</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>使用可能な処理ユニット</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>使用可能なメモリー</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListCell</name>
    <message>
        <source>error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <translation>注意LED点灯</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListViewController</name>
    <message>
        <source>System menu</source>
        <translation>システムメニュー</translation>
    </message>
    <message>
        <source>Managed System</source>
        <translation>管理対象システム</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>システム情報</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>パフォーマンス監視</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>論理区画</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>lodestar::MSOverViewController</name>
    <message>
        <source>Managed System</source>
        <translation>管理対象システム</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>パフォーマンス監視</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>論理区画</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>システム情報</translation>
    </message>
</context>
<context>
    <name>lodestar::OpenSourceViewController</name>
    <message>
        <source>Open Source Licenses</source>
        <translation>オープンソースライセンス</translation>
    </message>
</context>
<context>
    <name>lodestar::OrnisLicenseViewController</name>
    <message>
        <source>Ornis License</source>
        <translation>Ornisライセンス</translation>
    </message>
</context>
<context>
    <name>lodestar::PCMViewController</name>
    <message>
        <source>Fetching performance data...</source>
        <translation>パフォーマンスデータを取得中...</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>更新中...</translation>
    </message>
    <message>
        <source>No performance data available.</source>
        <translation>パフォーマンスデータがありません。</translation>
    </message>
</context>
<context>
    <name>lodestar::PartitionDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>基本情報</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>タイプ</translation>
    </message>
</context>
<context>
    <name>lodestar::PasswordCreationViewController</name>
    <message>
        <source>Set Password</source>
        <translation>パスコードを設定</translation>
    </message>
    <message>
        <source>Any characters, any length.</source>
        <translation>文字も長さも自由です。</translation>
    </message>
    <message>
        <source>%1. The passcode was not changed.</source>
        <translation>%1。パスコードは変わっていません。</translation>
    </message>
    <message>
        <source>Please reenter password</source>
        <translation>パスコードをもう一度入力してください</translation>
    </message>
    <message>
        <source>%1. The passcode was not saved.</source>
        <translation>%1。パスコードは保存されていません。</translation>
    </message>
    <message>
        <source>Password Saved</source>
        <translation>パスコードを保存しました</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>lodestar::PerformanceText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 a day, %2 a time of day</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 as in &quot;lowest 2.80&quot;, %2 a time of day</extracomment>
        <translation>%2に%1</translation>
    </message>
    <message>
        <source>%1 all along</source>
        <extracomment>%1 a number</extracomment>
        <translation>常に%1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>最低%1</translation>
    </message>
    <message>
        <source>mean %1</source>
        <translation>平均%1</translation>
    </message>
    <message>
        <source>highest %1</source>
        <translation>最高%1</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>最新%1</translation>
    </message>
    <message>
        <source>all along</source>
        <translation>常に</translation>
    </message>
    <message>
        <source>Total Processors</source>
        <translation>プロセッサー合計</translation>
    </message>
    <message>
        <source>Processors Allocated</source>
        <translation>プロセッサー割り当て</translation>
    </message>
    <message>
        <source>Processors Used</source>
        <translation>プロセッサー使用</translation>
    </message>
    <message>
        <source>Total Memory</source>
        <translation>メモリー合計</translation>
    </message>
    <message>
        <source>Memory Allocated</source>
        <translation>メモリー割り当て</translation>
    </message>
    <message>
        <source>Memory Used</source>
        <translation>メモリー使用</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>割り当て</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用</translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no values and are left out</source>
        <translation>
            <numerusform>値のないサンプル%Ln件は省かれます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no time and are left out of the chart</source>
        <translation>
            <numerusform>時刻のないサンプル%Ln件はグラフから省かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>total %1</source>
        <translation>合計%1</translation>
    </message>
    <message>
        <source>allocated %1</source>
        <translation>割り当て%1</translation>
    </message>
    <message>
        <source>used %1</source>
        <translation>使用%1</translation>
    </message>
</context>
<context>
    <name>lodestar::PieChartView</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a chart as they are read out.</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>lodestar::PlotChartView</name>
    <message>
        <source>%1 %2</source>
        <extracomment>A data set&apos;s name and its latest value, as in &quot;Processors Used 6.5&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the data sets of a chart as they are read out.</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <extracomment>A data set&apos;s name, the label of one of its values, and the value.</extracomment>
        <translation>%1、%2：%3</translation>
    </message>
</context>
<context>
    <name>lodestar::RGListCell</name>
    <message>
        <source>cyan</source>
        <translation>水色</translation>
    </message>
    <message>
        <source>green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>ピンク</translation>
    </message>
    <message numerus="yes">
        <source>%n Resources</source>
        <translation>
            <numerusform>リソース%n個</numerusform>
        </translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>更新中...</translation>
    </message>
    <message>
        <source>%1 good, %2 off, %3 alert, %4 error</source>
        <extracomment>A resource group&apos;s states, read aloud: counts</extracomment>
        <translation>良好%1、停止%2、注意%3、エラー%4</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingController</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>すべてコピー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingMark</name>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 the name of a feed, as in &quot;partitions&quot;</extracomment>
        <translation>%1が欠落</translation>
    </message>
    <message>
        <source>offline %1</source>
        <extracomment>%1 as in &quot;since 02:58&quot;</extracomment>
        <translation>%1オフライン</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>6件中%Ln件欠落</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReasonText</name>
    <message>
        <source>Refresh once more.</source>
        <translation>もう一度更新してください。</translation>
    </message>
    <message>
        <source>Check the address.</source>
        <translation>アドレスを確認してください。</translation>
    </message>
    <message>
        <source>Check the address; it may be another service.</source>
        <translation>アドレスを確認してください。別のサービスかもしれません。</translation>
    </message>
    <message>
        <source>Tell us through feedback.</source>
        <translation>フィードバックでお知らせください。</translation>
    </message>
    <message>
        <source>Refresh once more. A busy console often answers the second time.</source>
        <translation>もう一度更新してください。混雑したコンソールは2回目に応答することがよくあります。</translation>
    </message>
    <message>
        <source>If the same feed fails again, restart the console’s web service.</source>
        <translation>同じフィードがまた失敗するなら、コンソールのWebサービスを再起動してください。</translation>
    </message>
    <message>
        <source>nothing within 10 s</source>
        <translation>10秒以内に応答なし</translation>
    </message>
    <message>
        <source>name not found</source>
        <translation>名前が見つかりません</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>接続拒否</translation>
    </message>
    <message>
        <source>connection broke off</source>
        <translation>接続切断</translation>
    </message>
    <message>
        <source>redirected too often</source>
        <translation>転送が多すぎます</translation>
    </message>
    <message>
        <source>answer not understood</source>
        <translation>応答を理解できません</translation>
    </message>
    <message>
        <source>answer too large</source>
        <translation>応答が大きすぎます</translation>
    </message>
    <message>
        <source>no secure connection</source>
        <translation>安全な接続なし</translation>
    </message>
    <message>
        <source>its certificate changed</source>
        <translation>証明書が変わりました</translation>
    </message>
    <message>
        <source>wrong user or password</source>
        <translation>認証情報が違います</translation>
    </message>
    <message>
        <source>the console failed to answer (%1)</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>コンソールは応答できませんでした（%1）</translation>
    </message>
    <message>
        <source>answered %1</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1と応答</translation>
    </message>
    <message>
        <source>no session key</source>
        <translation>セッションキーなし</translation>
    </message>
    <message>
        <source>It did not answer within 10 s.</source>
        <translation>10秒以内に応答しませんでした。</translation>
    </message>
    <message>
        <source>Its name has no address.</source>
        <translation>その名前にはアドレスがありません。</translation>
    </message>
    <message>
        <source>Something is there, but refuses port 12443.</source>
        <translation>何かがありますが、ポート12443を拒否しています。</translation>
    </message>
    <message>
        <source>It broke off while answering.</source>
        <translation>応答の途中で切れました。</translation>
    </message>
    <message>
        <source>It sent Lodestar from one address to the next.</source>
        <translation>Lodestarを次々に別のアドレスへ転送しました。</translation>
    </message>
    <message>
        <source>What it answered is not HTTP.</source>
        <translation>その応答はHTTPではありません。</translation>
    </message>
    <message>
        <source>It answered more than Lodestar takes.</source>
        <translation>応答がLodestarの上限を超えました。</translation>
    </message>
    <message>
        <source>It offers no secure connection that this device accepts.</source>
        <translation>この端末が受け入れる安全な接続を提供していません。</translation>
    </message>
    <message>
        <source>Its certificate changed in the middle of the attempt. No password was sent.</source>
        <translation>試行の途中で証明書が変わりました。パスワードは送っていません。</translation>
    </message>
    <message>
        <source>It refused the user or the password.</source>
        <translation>ユーザーまたはパスワードを拒否しました。</translation>
    </message>
    <message>
        <source>It answered with an error of its own.</source>
        <translation>コンソール自身のエラーで応答しました。</translation>
    </message>
    <message>
        <source>It gave an answer that was not expected.</source>
        <translation>予期しない応答でした。</translation>
    </message>
    <message>
        <source>It accepted the logon but gave no key.</source>
        <translation>ログオンを受け入れましたが、キーを返しませんでした。</translation>
    </message>
    <message>
        <source>Check that this device is on the right network.</source>
        <translation>この端末が正しいネットワークにあるか確認してください。</translation>
    </message>
    <message>
        <source>A firewall may drop port 12443.</source>
        <translation>ファイアウォールがポート12443を遮断しているかもしれません。</translation>
    </message>
    <message>
        <source>Refresh in some minutes; the console may be starting.</source>
        <translation>数分後に更新してください。コンソールが起動中かもしれません。</translation>
    </message>
    <message>
        <source>Check the spelling of the address.</source>
        <translation>アドレスのつづりを確認してください。</translation>
    </message>
    <message>
        <source>Check this device&apos;s network.</source>
        <translation>この端末のネットワークを確認してください。</translation>
    </message>
    <message>
        <source>Try the number instead of the name.</source>
        <translation>名前の代わりにIPアドレスを試してください。</translation>
    </message>
    <message>
        <source>The console may be starting; refresh in some minutes.</source>
        <translation>コンソールが起動中かもしれません。数分後に更新してください。</translation>
    </message>
    <message>
        <source>If it stays so, look at what lies between here and the console.</source>
        <translation>続く場合は、ここからコンソールまでの間を調べてください。</translation>
    </message>
    <message>
        <source>Update the console: its TLS may be too old.</source>
        <translation>コンソールを更新してください。TLSが古すぎるかもしれません。</translation>
    </message>
    <message>
        <source>Before you refresh, compare the new fingerprint below with the one that the console shows.</source>
        <translation>更新する前に、下の新しいフィンガープリントをコンソールが示すものと比べてください。</translation>
    </message>
    <message>
        <source>If they agree, refresh. The new one is then taken.</source>
        <translation>一致すれば更新してください。新しいものが採用されます。</translation>
    </message>
    <message>
        <source>If not, something else answers at this address. Do not refresh; ask those who run the network.</source>
        <translation>一致しなければ、別のものがこのアドレスで応答しています。更新せず、ネットワークの管理者に尋ねてください。</translation>
    </message>
    <message>
        <source>Check the user on the console; it may be locked.</source>
        <translation>コンソールでユーザーを確認してください。ロックされているかもしれません。</translation>
    </message>
    <message>
        <source>Delete the console and add it with the new password.</source>
        <translation>コンソールを削除し、新しいパスワードで追加してください。</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportContent</name>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>重大度</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>コールホーム</translation>
    </message>
    <message>
        <source>intended</source>
        <translation>予定あり</translation>
    </message>
    <message>
        <source>not intended</source>
        <translation>予定なし</translation>
    </message>
    <message>
        <source>, extension %1</source>
        <extracomment>After a reference code; %1 its extension</extracomment>
        <translation>、拡張%1</translation>
    </message>
    <message>
        <source>Reference code</source>
        <translation>参照コード</translation>
    </message>
    <message>
        <source>Firmware fix</source>
        <translation>ファームウェア修正</translation>
    </message>
    <message>
        <source>First reported</source>
        <translation>最初の報告</translation>
    </message>
    <message>
        <source>Last reported</source>
        <translation>最後の報告</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>報告</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>部品%1</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>製造番号</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読み取り</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <extracomment>%1 this application with its version</extracomment>
        <translation>作成：%1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Type and model</source>
        <translation>タイプとモデル</translation>
    </message>
    <message>
        <source>Serviceable event #%1</source>
        <extracomment>%1 the event&apos;s number</extracomment>
        <translation>サービスイベント #%1</translation>
    </message>
    <message>
        <source>System %1</source>
        <extracomment>%1 a managed system</extracomment>
        <translation>システム%1</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>注意LED点灯</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>使用可能な処理ユニット</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>使用可能なメモリー</translation>
    </message>
    <message>
        <source>[address left out]</source>
        <translation>［アドレスは省略］</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more times</source>
        <translation>
            <numerusform>ほか%Ln回</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReportListViewController</name>
    <message>
        <source>Reports</source>
        <translation>レポート</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportViewController</name>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Report Exported</source>
        <translation>レポートを書き出しました</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be exported</source>
        <translation>レポートを書き出せませんでした</translation>
    </message>
    <message>
        <source>Delete this report?</source>
        <translation>このレポートを削除しますか？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>The report could not be deleted</source>
        <translation>レポートを削除できませんでした</translation>
    </message>
</context>
<context>
    <name>lodestar::SEDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>基本情報</translation>
    </message>
    <message>
        <source>Associated FRUs</source>
        <translation>関連FRU</translation>
    </message>
    <message>
        <source>Event Details</source>
        <translation>イベントの詳細</translation>
    </message>
    <message>
        <source>Problem Number</source>
        <translation>問題番号</translation>
    </message>
    <message>
        <source>Call Home Intended</source>
        <translation>コールホーム予定</translation>
    </message>
    <message>
        <source>Prob Mgmt Hardware Record</source>
        <translation>問題管理ハードウェア記録</translation>
    </message>
    <message>
        <source>Approval State</source>
        <translation>承認状態</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>参照コード</translation>
    </message>
    <message>
        <source>Reference Code Extension</source>
        <translation>参照コード拡張</translation>
    </message>
    <message>
        <source>System Reference Code</source>
        <translation>システム参照コード</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Firmware Fix</source>
        <translation>ファームウェア修正</translation>
    </message>
    <message>
        <source>First Reported Time</source>
        <translation>最初の報告時刻</translation>
    </message>
    <message>
        <source>Last Reported Time</source>
        <translation>最後の報告時刻</translation>
    </message>
    <message>
        <source>Data Event Time</source>
        <translation>データのイベント時刻</translation>
    </message>
    <message>
        <source>Reporting Console Name</source>
        <translation>報告コンソール名</translation>
    </message>
    <message>
        <source>Reporting MTMS</source>
        <translation>報告MTMS</translation>
    </message>
    <message>
        <source>Failing MTMS</source>
        <translation>障害MTMS</translation>
    </message>
    <message>
        <source>Event Text</source>
        <translation>イベント本文</translation>
    </message>
    <message>
        <source>Event Severity</source>
        <translation>イベントの重大度</translation>
    </message>
    <message>
        <source>Notification Type</source>
        <translation>通知タイプ</translation>
    </message>
    <message>
        <source>Duplicate Count</source>
        <translation>重複数</translation>
    </message>
    <message>
        <source>Mgmt Console Name</source>
        <translation>管理コンソール名</translation>
    </message>
    <message>
        <source>Mgmt Console MTMS</source>
        <translation>管理コンソールMTMS</translation>
    </message>
    <message>
        <source>Part Number</source>
        <translation>部品番号</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>クラス</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Location Code</source>
        <translation>場所コード</translation>
    </message>
    <message>
        <source>Previously Replaced</source>
        <translation>交換歴</translation>
    </message>
    <message>
        <source>Replaced Timestamp</source>
        <translation>交換日時</translation>
    </message>
    <message>
        <source>Replacement Group</source>
        <translation>交換グループ</translation>
    </message>
</context>
<context>
    <name>lodestar::SEListViewController</name>
    <message>
        <source>N/A</source>
        <translation>N/A</translation>
    </message>
</context>
<context>
    <name>lodestar::SearchBarOutlet</name>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
</context>
<context>
    <name>lodestar::Sentence</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a sentence or of a list</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>lodestar::ServiceReportController</name>
    <message>
        <source>Service Report</source>
        <translation>サービスレポート</translation>
    </message>
</context>
<context>
    <name>lodestar::SettingsViewController</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSDetailViewController</name>
    <message>
        <source>VIOS Details</source>
        <translation>VIOSの詳細</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSViewController</name>
    <message>
        <source>Check</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>お気に入り</translation>
    </message>
</context>
<context>
    <name>lodestar::VersionViewController</name>
    <message>
        <source>Release Notes</source>
        <translation>リリースノート</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchConsolesViewController</name>
    <message>
        <source>Consoles</source>
        <translation>コンソール</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchMessages</name>
    <message>
        <source>%1. %2</source>
        <extracomment>Two sentences, the first without its full stop.</extracomment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <extracomment>Times of day, as a sentence or with a console before it.</extracomment>
        <translation>%1〜%2の間</translation>
    </message>
    <message>
        <source>%1, between %2 and %3</source>
        <translation>%1、%2〜%3の間</translation>
    </message>
    <message>
        <source>Last read in full at %1</source>
        <translation>前回の完全な読み取りは%1</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <extracomment>%1 a console</extracomment>
        <translation>%1はオフラインです</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>コールホーム</translation>
    </message>
    <message>
        <source>%1: #%2 opened</source>
        <extracomment>%1 a console, %2 the number of an event</extracomment>
        <translation>%1：#%2が発生</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1は不完全です</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;
----------
%1 a console, %2 as in &quot;3 things got worse&quot;</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 stopped</source>
        <translation>%1が停止しました</translation>
    </message>
    <message>
        <source>%1: LED on</source>
        <translation>%1：LED点灯</translation>
    </message>
    <message>
        <source>%1 is in error</source>
        <translation>%1はエラーです</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>%1は不完全</translation>
    </message>
    <message>
        <source>not read in full</source>
        <translation>完全には読めず</translation>
    </message>
    <message>
        <source>LED on at %1</source>
        <translation>%1でLED点灯</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new events</source>
        <translation>
            <numerusform>新規イベント%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in error</source>
        <translation>%1はエラー</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles offline</source>
        <translation>
            <numerusform>コンソール%Ln台がオフライン</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems in error</source>
        <translation>
            <numerusform>システム%Ln台がエラー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems incomplete</source>
        <translation>
            <numerusform>システム%Ln台が不完全</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers in error</source>
        <translation>
            <numerusform>I/Oサーバー%Ln台がエラー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions in error</source>
        <translation>
            <numerusform>区画%Ln個がエラー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles not read in full</source>
        <translation>
            <numerusform>コンソール%Ln台は完全には読めず</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers stopped</source>
        <translation>
            <numerusform>I/Oサーバー%Ln台が停止</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions stopped</source>
        <translation>
            <numerusform>区画%Ln個が停止</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln LEDs on</source>
        <translation>
            <numerusform>LED %Ln個が点灯</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups in error</source>
        <translation>
            <numerusform>グループ%Ln個がエラー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got worse</source>
        <translation>
            <numerusform>%Ln件が悪化しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 on %Ln consoles</source>
        <extracomment>%1 as in &quot;7 things got worse&quot;, %n consoles</extracomment>
        <translation>
            <numerusform>コンソール%Ln台で%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things remain</source>
        <translation>
            <numerusform>%Ln件が残っています</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is online again</source>
        <translation>%1は再びオンラインです</translation>
    </message>
    <message>
        <source>%1: %2 read again</source>
        <extracomment>%1 a console, %2 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1：%2を再び読み取りました</translation>
    </message>
    <message>
        <source>%1: LED off</source>
        <translation>%1：LED消灯</translation>
    </message>
    <message>
        <source>%1 is %2 again</source>
        <extracomment>%1 a name, %2 the console&apos;s word for a state</extracomment>
        <translation>%1は再び%2です</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got better</source>
        <translation>
            <numerusform>%Ln件が改善しました</numerusform>
        </translation>
    </message>
    <message>
        <source>After %1</source>
        <extracomment>%1 a console, %2 as in &quot;42 min&quot;</extracomment>
        <translation>%1後</translation>
    </message>
    <message>
        <source>%1, after %2</source>
        <translation>%1、%2後</translation>
    </message>
    <message>
        <source>In the night, %1</source>
        <extracomment>%1 as in &quot;5 things got worse&quot;</extracomment>
        <translation>夜間に%1</translation>
    </message>
    <message>
        <source>None of them needs attention any more</source>
        <translation>いずれも、もう注意は不要です</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them still need attention</source>
        <translation>
            <numerusform>うち%Ln件はまだ注意が必要です</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles need attention</source>
        <translation>
            <numerusform>コンソール%Ln台に注意が必要です</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>分かる範囲で注意すべきものはありません</translation>
    </message>
    <message>
        <source>Open Lodestar to see more</source>
        <translation>Lodestarを開いて詳細をご覧ください</translation>
    </message>
    <message>
        <source>Lodestar can reach you</source>
        <translation>Lodestarから通知できます</translation>
    </message>
    <message>
        <source>This is how a message looks</source>
        <translation>通知はこのように見えます</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchText</name>
    <message>
        <source>every %1</source>
        <extracomment>%1 as in &quot;15 min&quot;</extracomment>
        <translation>%1ごと</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>open</source>
        <translation>未解決</translation>
    </message>
    <message>
        <source>open, call home</source>
        <translation>未解決、コールホーム</translation>
    </message>
    <message>
        <source>all %1</source>
        <translation>全%1台</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2台中%1台</translation>
    </message>
    <message numerus="yes">
        <source>%1 are left out until you refresh them by hand: their certificates changed.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1は証明書が変わったため、手動で更新するまで除かれます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln時間</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln分</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::WatchViewController</name>
    <message>
        <source>Watch</source>
        <translation>監視</translation>
    </message>
    <message>
        <source>This system shows no messages. Attention still counts.</source>
        <translation>このシステムは通知を表示できません。「要注意」の件数は引き続き出ます。</translation>
    </message>
    <message>
        <source>Reading goes on. At %1 one message sums up the night, if anything got worse.</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>読み取りは続きます。悪化があれば、%1に夜間の出来事を1件の通知にまとめます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>新規イベント</translation>
    </message>
</context>
<context>
    <name>lodestar::WindowDialogs</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Corvelコンソールを監視し、何も変更しません。</translation>
    </message>
    <message>
        <source>Keep everything in this folder.</source>
        <translation>すべてをこのフォルダーに置きます。</translation>
    </message>
    <message>
        <source>Offer to send feedback and crash reports to this https address.</source>
        <translation>フィードバックとクラッシュレポートをこのhttpsアドレスへ送ることを提案します。</translation>
    </message>
    <message>
        <source>Fill the screen.</source>
        <translation>全画面で表示します。</translation>
    </message>
    <message>
        <source>Leave once the first screen is drawn, for measuring.</source>
        <translation>最初の画面を描いたら終了します（測定用）。</translation>
    </message>
    <message>
        <source>Speak this language instead of the system&apos;s (en, de, fr, es, ja, ar).</source>
        <extracomment>In brackets codes, which stay as they are</extracomment>
        <translation>システムの言語ではなく、この言語を使います（en、de、fr、es、ja、ar）。</translation>
    </message>
</context>
</TS>
