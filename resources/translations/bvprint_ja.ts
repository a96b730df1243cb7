<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
    <context>
        <name>bvprint</name>
        <message>
            <source>%1 “%2”</source>
            <comment>option and choice</comment>
            <translation>%1「%2」</translation>
        </message>
        <message>
            <source>%1 and %2 do not go together.</source>
            <comment>options and choices</comment>
            <translation>%1と%2は同時に使用できません。</translation>
        </message>
        <message>
            <source>, </source>
            <comment>between options</comment>
            <translation>、</translation>
        </message>
        <message>
            <source>Change %1 to %2</source>
            <translation>「%1」を「%2」に変更</translation>
        </message>
        <message>
            <source>Turn %1 on</source>
            <translation>「%1」をオンにする</translation>
        </message>
        <message>
            <source>Turn %1 off</source>
            <translation>「%1」をオフにする</translation>
        </message>
        <message>
            <source>Document</source>
            <translation>文書</translation>
        </message>
        <message>
            <source>The document does not come to its end.</source>
            <translation>文書を最後まで受け取れませんでした。</translation>
        </message>
        <message>
            <source>The pages of the document could not be counted in time.</source>
            <translation>時間内に文書のページ数を確認できませんでした。</translation>
        </message>
        <message>
            <source>Job %1 is not held: it waits for its turn, and is printed as it is.</source>
            <translation>ジョブ%1は保留されていません。順番が来ると、そのまま印刷されます。</translation>
        </message>
        <message>
            <source>Job %1 is being printed already.</source>
            <translation>ジョブ%1はすでに印刷中です。</translation>
        </message>
        <message>
            <source>Job %1 has begun to print, and stopped. Resume it in the system's printer settings.</source>
            <translation>ジョブ%1は印刷の途中で停止しました。システムのプリンター設定で再開してください。</translation>
        </message>
        <message>
            <source>Job %1 was canceled. Print the document again.</source>
            <translation>ジョブ%1はキャンセルされました。文書をもう一度印刷してください。</translation>
        </message>
        <message>
            <source>Job %1 failed. Print the document again.</source>
            <translation>ジョブ%1は失敗しました。文書をもう一度印刷してください。</translation>
        </message>
        <message>
            <source>Job %1 has been printed already.</source>
            <translation>ジョブ%1はすでに印刷されました。</translation>
        </message>
        <message>
            <source>Other choices decide this now.</source>
            <translation>現在はほかの設定によって決まります。</translation>
        </message>
        <message>
            <source>The picture %1 cannot be written.</source>
            <translation>画像%1を書き込めません。</translation>
        </message>
        <message>
            <source>No print server: jobs are written to %1</source>
            <translation>プリントサーバーなし: ジョブは%1に書き込まれます</translation>
        </message>
        <message>
            <source>The print server has no printer %1 any more; choose another one.</source>
            <translation>プリントサーバーにプリンター「%1」はもうありません。別のプリンターを選択してください。</translation>
        </message>
        <message>
            <source>The printer %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that.</source>
            <translation>プリンター「%1」はこの形式の文書に対応していないため、%2を印刷できません。PDFで保存してから印刷してください。</translation>
        </message>
        <message>
            <source>The printer %1 takes no jobs just now; choose another one, or ask who looks after it.</source>
            <translation>プリンター「%1」は現在ジョブを受け付けていません。別のプリンターを選択するか、管理者に問い合わせてください。</translation>
        </message>
        <message>
            <source>You may not print on the printer %1; ask who looks after it.</source>
            <translation>プリンター「%1」で印刷する権限がありません。管理者に問い合わせてください。</translation>
        </message>
        <message>
            <source>You may not print on the printer %1 without logging in to the print server; ask who looks after it.</source>
            <translation>プリンター「%1」で印刷するには、プリントサーバーへのログインが必要です。管理者に問い合わせてください。</translation>
        </message>
        <message>
            <source>out of paper: fill a tray</source>
            <translation>用紙切れ: トレイに用紙を補給してください</translation>
        </message>
        <message>
            <source>needs paper: fill a tray</source>
            <translation>用紙が必要です: トレイに用紙を補給してください</translation>
        </message>
        <message>
            <source>little paper left</source>
            <translation>用紙が残りわずかです</translation>
        </message>
        <message>
            <source>paper jam: take out the paper that is stuck</source>
            <translation>紙詰まり: 詰まった用紙を取り除いてください</translation>
        </message>
        <message>
            <source>out of toner: change the cartridge</source>
            <translation>トナー切れ: カートリッジを交換してください</translation>
        </message>
        <message>
            <source>little toner left</source>
            <translation>トナーが残りわずかです</translation>
        </message>
        <message>
            <source>out of toner or ink: change the cartridge</source>
            <translation>トナーまたはインク切れ: カートリッジを交換してください</translation>
        </message>
        <message>
            <source>little toner or ink left</source>
            <translation>トナーまたはインクが残りわずかです</translation>
        </message>
        <message>
            <source>the container for waste toner is full: change it</source>
            <translation>廃トナー容器が満杯です: 交換してください</translation>
        </message>
        <message>
            <source>the container for waste toner is almost full</source>
            <translation>廃トナー容器がもうすぐ満杯です</translation>
        </message>
        <message>
            <source>the developer is used up: change it</source>
            <translation>現像剤が寿命に達しました: 交換してください</translation>
        </message>
        <message>
            <source>the developer is almost used up</source>
            <translation>現像剤がまもなく寿命です</translation>
        </message>
        <message>
            <source>the drum is used up: change it</source>
            <translation>ドラムが寿命に達しました: 交換してください</translation>
        </message>
        <message>
            <source>the drum is almost used up</source>
            <translation>ドラムがまもなく寿命です</translation>
        </message>
        <message>
            <source>too hot: let it cool down</source>
            <translation>高温になっています: 冷めるまでお待ちください</translation>
        </message>
        <message>
            <source>a door is open: close it</source>
            <translation>ドアが開いています: 閉じてください</translation>
        </message>
        <message>
            <source>a cover is open: close it</source>
            <translation>カバーが開いています: 閉じてください</translation>
        </message>
        <message>
            <source>a tray is missing: push it in</source>
            <translation>トレイが外れています: 奥まで差し込んでください</translation>
        </message>
        <message>
            <source>the output tray is missing: put it in</source>
            <translation>排紙トレイが外れています: 取り付けてください</translation>
        </message>
        <message>
            <source>the output tray is full: empty it</source>
            <translation>排紙トレイが満杯です: 用紙を取り出してください</translation>
        </message>
        <message>
            <source>the output tray is almost full</source>
            <translation>排紙トレイがもうすぐ満杯です</translation>
        </message>
        <message>
            <source>no room for more jobs: wait for others to be printed</source>
            <translation>これ以上ジョブを受け付けられません: ほかのジョブの印刷が終わるまでお待ちください</translation>
        </message>
        <message>
            <source>switched off or not connected: switch it on</source>
            <translation>電源が入っていないか、接続されていません: 電源を入れてください</translation>
        </message>
        <message>
            <source>switched off: switch it on</source>
            <translation>電源が入っていません: 電源を入れてください</translation>
        </message>
        <message>
            <source>does not answer: is it switched on and connected?</source>
            <translation>応答がありません: 電源と接続を確認してください</translation>
        </message>
        <message>
            <source>its driver is not complete: ask who looks after it</source>
            <translation>ドライバーに不足があります: 管理者に問い合わせてください</translation>
        </message>
        <message>
            <source>The print server does not tell its jobs: %1.</source>
            <translation>プリントサーバーからジョブの一覧を取得できません（%1）。</translation>
        </message>
        <message>
            <source>%1: there is no such profile in your list.</source>
            <translation>%1: そのプロファイルはリストにありません。</translation>
        </message>
        <message>
            <source>Standard output cannot be written.</source>
            <translation>標準出力に書き込めません。</translation>
        </message>
        <message>
            <source>The choices are not complete yet.</source>
            <translation>まだ設定が完了していません。</translation>
        </message>
        <message>
            <source>request id is %1-%2 (%3 file(s))</source>
            <translation>リクエスト ID は %1-%2 です (%3 個のファイル)</translation>
        </message>
        <message>
            <source>Nothing is sent without a print server. These would be the options of the job:</source>
            <translation>プリントサーバーがないため何も送信されません。ジョブのオプションは次のようになります:</translation>
        </message>
        <message>
            <source>The printer's default.</source>
            <translation>プリンターのデフォルトです。</translation>
        </message>
        <message>
            <source>Given on the command line.</source>
            <translation>コマンドラインで指定されました。</translation>
        </message>
        <message>
            <source>Follows from another choice.</source>
            <translation>ほかの設定から決まります。</translation>
        </message>
        <message>
            <source>Changed</source>
            <translation>変更あり</translation>
        </message>
        <message>
            <source>Unchanged</source>
            <translation>変更なし</translation>
        </message>
        <message>
            <source>%1 (default)</source>
            <translation>%1（デフォルト）</translation>
        </message>
        <message>
            <source>This job</source>
            <translation>このジョブ</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>部数</translation>
        </message>
        <message>
            <source>Pages to print</source>
            <translation>印刷するページ</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”; lpoptions stores some.</source>
            <translation>「%1」という既定値はありません。lpoptions で保存できます。</translation>
        </message>
        <message>
            <source>From the preset “%1”.</source>
            <translation>プリセット「%1」の設定です。</translation>
        </message>
        <message>
            <source>“%1” is no option. Write KEYWORD=CHOICE.</source>
            <translation>「%1」はオプションではありません。KEYWORD=CHOICE の形で書いてください。</translation>
        </message>
        <message>
            <source>The print dialog no longer opens by itself for your waiting jobs.
</source>
            <translation>待機中のジョブがあっても、印刷ダイアログは自動で開かなくなりました。
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from now on and in later sessions.
</source>
            <translation>プリントサーバーで自分のジョブが保留されると、これ以降（次回以降のセッションを含む）、印刷ダイアログが開きます。
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from your next session on.
</source>
            <translation>プリントサーバーで自分のジョブが保留されると、次回のセッションから印刷ダイアログが開きます。
</translation>
        </message>
        <message>
            <source>The agent runs in this session already.</source>
            <translation>エージェントはこのセッションですでに動作しています。</translation>
        </message>
        <message>
            <source>The file %1 cannot be written: %2.</source>
            <translation>ファイル「%1」に書き込めません（%2）。</translation>
        </message>
        <message>
            <source>The file %1 cannot be removed: %2.</source>
            <translation>ファイル「%1」を削除できません（%2）。</translation>
        </message>
        <message>
            <source>Job %1 is in a state that this dialog does not know.</source>
            <translation>ジョブ%1は、このダイアログでは扱えない状態です。</translation>
        </message>
        <message>
            <source>The print server %1 has no job %2. It may have been printed long ago.</source>
            <translation>プリントサーバー「%1」にジョブ%2はありません。すでに印刷済みかもしれません。</translation>
        </message>
        <message>
            <source>The print server does not tell about job %1: %2.</source>
            <translation>プリントサーバーからジョブ%1の情報を取得できません（%2）。</translation>
        </message>
        <message>
            <source>Job %1 was sent to the printer “%2”, not to “%3”.</source>
            <translation>ジョブ%1の送信先はプリンター「%2」です。「%3」ではありません。</translation>
        </message>
        <message>
            <source>Job %1 belongs to somebody else. Only its owner can print it.</source>
            <translation>ジョブ%1はほかのユーザーのものです。印刷できるのは所有者だけです。</translation>
        </message>
        <message>
            <source>Job %1 is still being sent. Try again in a moment.</source>
            <translation>ジョブ%1はまだ送信中です。しばらくしてからもう一度お試しください。</translation>
        </message>
        <message>
            <source>“%1” is no job. Give its number, as lpstat -o shows it.</source>
            <translation>「%1」はジョブではありません。「lpstat -o」で表示される番号を指定してください。</translation>
        </message>
        <message>
            <source>The options --queue and --job name different printers.</source>
            <translation>オプション--queueと--jobで異なるプリンターが指定されています。</translation>
        </message>
        <message>
            <source>Document %1</source>
            <translation>文書%1</translation>
        </message>
        <message>
            <source>No preview: the documents cannot be kept.</source>
            <translation>プレビューなし: 文書を一時保存できません。</translation>
        </message>
        <message>
            <source>No preview: the print server does not give the document out.</source>
            <translation>プレビューなし: プリントサーバーから文書を取得できません。</translation>
        </message>
        <message>
            <source>No preview: %1</source>
            <translation>プレビューなし: %1</translation>
        </message>
        <message>
            <source>The print server refuses to change job %1, which stays held: %2.</source>
            <translation>プリントサーバーがジョブ%1の変更を拒否しました（%2）。ジョブは保留のままです。</translation>
        </message>
        <message>
            <source>%1 Job %2 stays held.</source>
            <translation>%1 ジョブ%2は保留のままです。</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is canceled. Look at the printer's jobs.</source>
            <translation>ジョブ%1がキャンセルされたかどうかをプリントサーバーに確認できませんでした。プリンターのジョブを確認してください。</translation>
        </message>
        <message>
            <source>Job %1 could not be canceled: %2.</source>
            <translation>ジョブ%1をキャンセルできませんでした（%2）。</translation>
        </message>
        <message>
            <source>%1 is no file of this computer; save the document here first.</source>
            <translation>「%1」はこのコンピューターのファイルではありません。先に文書をこのコンピューターに保存してください。</translation>
        </message>
        <message>
            <source>%1 cannot be written: %2.</source>
            <translation>「%1」に書き込めません（%2）。</translation>
        </message>
        <message>
            <source>The document %1 cannot be copied to %2: %3.</source>
            <translation>文書「%1」を「%2」にコピーできません（%3）。</translation>
        </message>
        <message>
            <source>The job was canceled. Nothing was printed.</source>
            <translation>ジョブをキャンセルしました。何も印刷されていません。</translation>
        </message>
        <message>
            <source>The print server cannot carry an option of the name “%1”.</source>
            <translation>プリントサーバーは「%1」という名前のオプションを扱えません。</translation>
        </message>
        <message>
            <source>The print server cannot carry the value %1 of the option %2; choose another one.</source>
            <translation>プリントサーバーはオプション「%2」の値「%1」を扱えません。別の値を選択してください。</translation>
        </message>
        <message>
            <source>“%1” is no page or range of pages. Write for example 1-3, 8.</source>
            <translation>「%1」はページまたはページ範囲ではありません。「1-3, 8」のように入力してください。</translation>
        </message>
        <message>
            <source>Pages are counted from 1.</source>
            <translation>ページ番号は1から始まります。</translation>
        </message>
        <message>
            <source>The range %1 runs backwards. Write %2-%3.</source>
            <translation>範囲「%1」は順序が逆です。「%2-%3」と入力してください。</translation>
        </message>
        <message>
            <source>Enter the pages to print, for example 1-3, 8.</source>
            <translation>印刷するページを「1-3, 8」のように入力してください。</translation>
        </message>
        <message>
            <source>There is no document to print.</source>
            <translation>印刷する文書がありません。</translation>
        </message>
        <message>
            <source>The document %1 is not there.</source>
            <translation>文書「%1」が見つかりません。</translation>
        </message>
        <message>
            <source>%1 is no document but a folder or a device.</source>
            <translation>「%1」は文書ではなく、フォルダーまたはデバイスです。</translation>
        </message>
        <message>
            <source>The document %1 cannot be read: %2.</source>
            <translation>文書「%1」を読み込めません（%2）。</translation>
        </message>
        <message>
            <source>The document %1 is empty.</source>
            <translation>文書「%1」は空です。</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document. Print the documents one by one, or all of their pages.</source>
            <translation>ページ範囲は1つの文書にのみ指定できます。文書を1つずつ印刷するか、すべてのページを印刷してください。</translation>
        </message>
        <message>
            <source>%1 has 1 page; there is no page %2.</source>
            <translation>「%1」は1ページだけです。%2ページはありません。</translation>
        </message>
        <message>
            <source>%1 has %2 pages; there is no page %3.</source>
            <translation>「%1」は全%2ページです。%3ページはありません。</translation>
        </message>
        <message>
            <source>The options cannot be kept.</source>
            <translation>オプションを一時保存できません。</translation>
        </message>
        <message>
            <source>The options do not let this job be printed.</source>
            <translation>現在のオプションではこのジョブを印刷できません。</translation>
        </message>
        <message>
            <source>The printer %1 refused the job: %2.</source>
            <translation>プリンター「%1」がジョブを拒否しました（%2）。</translation>
        </message>
        <message>
            <source>the document</source>
            <translation>文書</translation>
        </message>
        <message>
            <source>Nothing was printed.</source>
            <translation>何も印刷されていません。</translation>
        </message>
        <message>
            <source>The print server gave the job no number.</source>
            <translation>プリントサーバーがジョブに番号を割り当てませんでした。</translation>
        </message>
        <message>
            <source>Look whether it was printed before printing again.</source>
            <translation>もう一度印刷する前に、すでに印刷されていないか確認してください。</translation>
        </message>
        <message>
            <source>The job was stopped, but the print server did not confirm that it is canceled.</source>
            <translation>ジョブを中止しましたが、キャンセルされたかどうかをプリントサーバーに確認できませんでした。</translation>
        </message>
        <message>
            <source>The connection to the print server was lost before all of %1 was sent.</source>
            <translation>%1の送信が終わる前に、プリントサーバーとの接続が切れました。</translation>
        </message>
        <message>
            <source>The connection to the print server was lost, and %1 was not printed; print again.</source>
            <translation>プリントサーバーとの接続が切れたため、%1は印刷されませんでした。もう一度印刷してください。</translation>
        </message>
        <message>
            <source>The print server took the document but did not confirm it.</source>
            <translation>プリントサーバーに文書を送信しましたが、受け付けを確認できませんでした。</translation>
        </message>
        <message>
            <source>The job was canceled; print again.</source>
            <translation>ジョブはキャンセルされました。もう一度印刷してください。</translation>
        </message>
        <message>
            <source>The print server did not confirm the job. Look whether it was printed before printing again.</source>
            <translation>ジョブの受け付けをプリントサーバーに確認できませんでした。もう一度印刷する前に、すでに印刷されていないか確認してください。</translation>
        </message>
        <message>
            <source>The document has more than %1.</source>
            <translation>文書のサイズが%1を超えています。</translation>
        </message>
        <message>
            <source>The document cannot be kept in %1: %2.</source>
            <translation>文書を「%1」に一時保存できません（%2）。</translation>
        </message>
        <message>
            <source>What the program wants to print is no file.</source>
            <translation>アプリが印刷しようとしているものはファイルではありません。</translation>
        </message>
        <message>
            <source>The document cannot be read: %1.</source>
            <translation>文書を読み込めません（%1）。</translation>
        </message>
        <message>
            <source>The document is empty.</source>
            <translation>文書が空です。</translation>
        </message>
        <message>
            <source>A preset needs a name.</source>
            <translation>プリセットには名前が必要です。</translation>
        </message>
        <message>
            <source>The name of a preset has at most %1 characters.</source>
            <translation>プリセットの名前は%1文字以内で入力してください。</translation>
        </message>
        <message>
            <source>The name of a preset is one line of text.</source>
            <translation>プリセットの名前は1行で入力してください。</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2</source>
            <translation>%1を使用できません: %2</translation>
        </message>
        <message>
            <source>It is no JSON object, as presets are.</source>
            <translation>プリセットの形式（JSONオブジェクト）ではありません。</translation>
        </message>
        <message>
            <source>It is no preset of this dialog.</source>
            <translation>この印刷ダイアログのプリセットではありません。</translation>
        </message>
        <message>
            <source>It was made by a newer version of this dialog. Have that installed to use it.</source>
            <translation>新しいバージョンの印刷ダイアログで作成されています。使用するには、新しいバージョンをインストールしてください。</translation>
        </message>
        <message>
            <source>Its name or its options are missing.</source>
            <translation>名前またはオプションがありません。</translation>
        </message>
        <message>
            <source>The preset %1</source>
            <translation>プリセット「%1」</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>名前(&amp;N):</translation>
        </message>
        <message>
            <source>Check that its folder can be written and that the disk has room.</source>
            <translation>フォルダーに書き込めることと、ディスクに空き容量があることを確認してください。</translation>
        </message>
        <message>
            <source>%1: this printer has no such setting.</source>
            <translation>%1: このプリンターにはない設定です。</translation>
        </message>
        <message>
            <source>%1: this printer does not offer “%2”.</source>
            <translation>%1: このプリンターでは「%2」を選択できません。</translation>
        </message>
        <message>
            <source>%1: the saved choice is not there any more.</source>
            <translation>%1: 保存した選択肢はもう使用できません。</translation>
        </message>
        <message>
            <source>It is protected by a password.</source>
            <translation>パスワードで保護されています。</translation>
        </message>
        <message>
            <source>It takes too long to draw.</source>
            <translation>描画に時間がかかりすぎます。</translation>
        </message>
        <message>
            <source>It cannot be read and may be damaged.</source>
            <translation>読み込めません。ファイルが破損している可能性があります。</translation>
        </message>
        <message>
            <source>%1, %2</source>
            <translation>%1、%2</translation>
        </message>
        <message>
            <source>No preview of documents of this kind.</source>
            <translation>この種類の文書はプレビューできません。</translation>
        </message>
        <message>
            <source>No preview</source>
            <translation>プレビューなし</translation>
        </message>
        <message>
            <source>%1 (%2)</source>
            <comment>description and name of a printer</comment>
            <translation>%1（%2）</translation>
        </message>
        <message>
            <source>takes no jobs: choose another printer</source>
            <translation>ジョブを受け付けていません: 別のプリンターを選択してください</translation>
        </message>
        <message>
            <source>stopped: jobs wait until somebody resumes it</source>
            <translation>停止中: 再開されるまでジョブは待機します</translation>
        </message>
        <message>
            <source> · </source>
            <translation> ・ </translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment. Choose another one, or ask who looks after it.</source>
            <translation>このプリンターは現在ジョブを受け付けていません。別のプリンターを選択するか、管理者に問い合わせてください。</translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.</source>
            <translation>このプリンターは現在ジョブを受け付けていません（%1）。別のプリンターを選択するか、管理者に問い合わせてください。</translation>
        </message>
        <message>
            <source>%1 cannot be read: %2.</source>
            <translation>%1を読み込めません（%2）。</translation>
        </message>
        <message>
            <source>%1 is larger than %2.</source>
            <translation>%1のサイズが%2を超えています。</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 MB</translation>
        </message>
        <message>
            <source>%1 is no file.</source>
            <translation>%1はファイルではありません。</translation>
        </message>
        <message>
            <source>%1 is damaged or cut off.</source>
            <translation>%1は破損しているか、途中で切れています。</translation>
        </message>
        <message>
            <source>a quoted value</source>
            <translation>引用符で囲まれた値</translation>
        </message>
        <message>
            <source>The print server does not tell its printers: %1. Try again later.</source>
            <translation>プリントサーバーからプリンターの一覧を取得できません（%1）。後でもう一度お試しください。</translation>
        </message>
        <message>
            <source>The print server %1 does not answer; check that it is running.</source>
            <translation>プリントサーバー「%1」から応答がありません。動作しているか確認してください。</translation>
        </message>
        <message>
            <source>The file of your defaults, %1, cannot be read.</source>
            <translation>自分のデフォルトを保存したファイル「%1」を読み込めません。</translation>
        </message>
        <message>
            <source>Your defaults could not be written: %1: %2.</source>
            <translation>自分のデフォルトを保存できませんでした（%1: %2）。</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>コピー</translation>
        </message>
        <message>
            <source>%1 tells what is built into the printer; no job can choose it.</source>
            <translation>%1 はプリンターに取り付けられているものを示します。ジョブでは選べません。</translation>
        </message>
        <message>
            <source>%1 cannot be “%2”; it takes %3.</source>
            <translation>%1 を「%2」にすることはできません。指定できる値: %3</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. bvprint --list shows all.</source>
            <translation>このプリンターにオプション「%1」はありません。bvprint --list ですべて表示されます。</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. Did you mean %2? bvprint --list shows all.</source>
            <translation>このプリンターにオプション「%1」はありません。%2 のことですか？ bvprint --list ですべて表示されます。</translation>
        </message>
        <message>
            <source>bvprint --list shows all choices.</source>
            <translation>bvprint --list ですべての選択肢が表示されます。</translation>
        </message>
        <message>
            <source>Choose one of: %1</source>
            <translation>次のいずれかを選んでください: %1</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <comment>conflicts</comment>
            <translation>ほか%1件。</translation>
        </message>
        <message>
            <source>Settled.</source>
            <comment>conflicts</comment>
            <translation>解決しました。</translation>
        </message>
        <message>
            <source>&amp;My Defaults</source>
            <translation>自分のデフォルト(&amp;M)</translation>
        </message>
        <message>
            <source>Use the present choices for other programs and later jobs as well</source>
            <translation>現在の設定をほかのアプリや今後のジョブでも使用します</translation>
        </message>
        <message>
            <source>Use for &amp;All My Printing</source>
            <translation>自分のすべての印刷に使用(&amp;A)</translation>
        </message>
        <message>
            <source>Store under a &amp;Name…</source>
            <translation>名前を付けて保存(&amp;N)…</translation>
        </message>
        <message>
            <source>&amp;Take Back</source>
            <translation>元に戻す(&amp;T)</translation>
        </message>
        <message>
            <source>Your programs now print on “%1” with these choices, unless they choose otherwise.</source>
            <translation>アプリで別の設定を選ばない限り、今後「%1」ではこの設定で印刷されます。</translation>
        </message>
        <message>
            <source>Store under a Name</source>
            <translation>名前を付けて保存</translation>
        </message>
        <message>
            <source>&amp;Name, for example “Draft”:</source>
            <translation>名前（例: 「下書き」）(&amp;N):</translation>
        </message>
        <message>
            <source>These choices can now be used as “%1”, by this dialog and other programs.</source>
            <translation>この設定は、このダイアログやほかのアプリで「%1」として使用できます。</translation>
        </message>
        <message>
            <source>Your defaults of “%1” are again what they were. The choices shown here stay.</source>
            <translation>「%1」の自分のデフォルトを変更前に戻しました。ここに表示されている設定は変わりません。</translation>
        </message>
        <message>
            <source>Waiting for “%1” to answer…</source>
            <translation>「%1」の応答を待っています…</translation>
        </message>
        <message>
            <source>S&amp;kip</source>
            <translation>スキップ(&amp;K)</translation>
        </message>
        <message>
            <source>The printer did not answer. None of its profiles are known.</source>
            <translation>プリンターから応答がありませんでした。プリンター内のプロファイルは不明です。</translation>
        </message>
        <message>
            <source>The printer did not answer. Its profiles are shown as of %1, %2.</source>
            <comment>date and time</comment>
            <translation>プリンターから応答がありませんでした。%1 %2時点のプロファイルを表示しています。</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <comment>a date in the notation of QLocale</comment>
            <translation>M月d日</translation>
        </message>
        <message>
            <source>Standard input is no document here: the commands come from it.</source>
            <translation>標準入力はコマンドの読み込みに使用しているため、文書としては使用できません。</translation>
        </message>
        <message>
            <source>Standard input can be printed only once.</source>
            <translation>標準入力は1回だけ印刷できます。</translation>
        </message>
        <message>
            <source>standard input</source>
            <translation>標準入力</translation>
        </message>
        <message>
            <source>Standard input cannot be kept in %1: %2.</source>
            <translation>標準入力を「%1」に一時保存できません（%2）。</translation>
        </message>
        <message>
            <source>Standard input cannot be read: %1.</source>
            <translation>標準入力を読み込めません（%1）。</translation>
        </message>
        <message>
            <source>Drop files here, or choose Add.</source>
            <translation>ここにファイルをドロップするか、「追加」を選択してください。</translation>
        </message>
        <message>
            <source>“%1” was not found.</source>
            <translation>「%1」が見つかりません。</translation>
        </message>
        <message>
            <source>“%1” is a folder. Add the files in it.</source>
            <translation>「%1」はフォルダーです。中のファイルを追加してください。</translation>
        </message>
        <message>
            <source>“%1” cannot be read. Ask its owner for leave to read it.</source>
            <translation>「%1」を読み込めません。所有者に読み取りの許可を依頼してください。</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>追加(&amp;A)…</translation>
        </message>
        <message>
            <source>Remo&amp;ve</source>
            <translation>外す(&amp;V)</translation>
        </message>
        <message>
            <source>Documents</source>
            <translation>文書</translation>
        </message>
        <message>
            <source>Alt+Up and Alt+Down move the selected documents, Delete takes them out</source>
            <translation>Alt+上矢印とAlt+下矢印で選択した文書の順序を変更し、Deleteで一覧から外します</translation>
        </message>
        <message>
            <source>Choose files to print (Ctrl+O)</source>
            <translation>印刷するファイルを選択します（Ctrl+O）</translation>
        </message>
        <message>
            <source>“%1” is in the list already.</source>
            <translation>「%1」はすでに一覧にあります。</translation>
        </message>
        <message>
            <source>Only files of this computer can be printed. Save the document here first.</source>
            <translation>このコンピューターにあるファイルだけを印刷できます。先に文書をこのコンピューターに保存してください。</translation>
        </message>
        <message>
            <source>Add Documents</source>
            <translation>文書を追加</translation>
        </message>
        <message>
            <source>&amp;Documents (%1, %2):</source>
            <comment>number and size</comment>
            <translation>文書（%1件、%2）(&amp;D):</translation>
        </message>
        <message>
            <source>&amp;Documents:</source>
            <translation>文書(&amp;D):</translation>
        </message>
        <message>
            <source>Take the selected documents out of the job; the files themselves stay</source>
            <translation>選択した文書をジョブから外します（ファイル自体は残ります）</translation>
        </message>
        <message>
            <source>Select the documents to take out first</source>
            <translation>先に、外す文書を選択してください</translation>
        </message>
        <message>
            <source>The document %1</source>
            <translation>文書「%1」</translation>
        </message>
        <message>
            <source>The document %1 became shorter while it was being sent.</source>
            <translation>送信中に文書「%1」が短くなりました。</translation>
        </message>
        <message>
            <source>The folder %1 cannot be made.</source>
            <translation>フォルダー「%1」を作成できません。</translation>
        </message>
        <message>
            <source>The job was written to %1.</source>
            <translation>ジョブを「%1」に書き込みました。</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document, and this job has %1. Print all of their pages.</source>
            <translation>ページ範囲は1つの文書にのみ指定できますが、このジョブには文書が%1件あります。すべてのページを印刷してください。</translation>
        </message>
        <message>
            <source>Nothing was printed. Job %1 stays held.</source>
            <translation>何も印刷されていません。ジョブ%1は保留のままです。</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is released. Look at the printer's jobs before printing again.</source>
            <translation>ジョブ%1の保留が解除されたかどうかをプリントサーバーに確認できませんでした。もう一度印刷する前に、プリンターのジョブを確認してください。</translation>
        </message>
        <message>
            <source>Job %1: %2</source>
            <translation>ジョブ%1: %2</translation>
        </message>
        <message>
            <source>%1 documents</source>
            <translation>文書%1件</translation>
        </message>
        <message>
            <source>Sent %1. It is held until you print or cancel it.</source>
            <translation>送信日時: %1。印刷またはキャンセルするまで保留されます。</translation>
        </message>
        <message>
            <source>Ca&amp;ncel Job</source>
            <translation>ジョブをキャンセル(&amp;N)</translation>
        </message>
        <message>
            <source>Print – %1</source>
            <translation>印刷 – %1</translation>
        </message>
        <message>
            <source>Document in the preview</source>
            <translation>プレビューする文書</translation>
        </message>
        <message>
            <source>Remove the job from the printer without printing it</source>
            <translation>印刷せずにジョブをプリンターから削除します</translation>
        </message>
        <message>
            <source>&amp;Decide Later</source>
            <translation>後で決める(&amp;D)</translation>
        </message>
        <message>
            <source>Close this window. The job stays held until you print or cancel it.</source>
            <translation>このウィンドウを閉じます。ジョブは印刷またはキャンセルするまで保留されます。</translation>
        </message>
        <message>
            <source>A&amp;ll pages</source>
            <translation>すべてのページ(&amp;L)</translation>
        </message>
        <message>
            <source>Pa&amp;ges:</source>
            <translation>ページ指定(&amp;G):</translation>
        </message>
        <message>
            <source>1-3, 8</source>
            <translation>1-3, 8</translation>
        </message>
        <message>
            <source>Cop&amp;ies:</source>
            <translation>部数(&amp;I):</translation>
        </message>
        <message>
            <source>Pages and ranges between commas, for example 1-3, 8, 12-</source>
            <translation>ページや範囲をカンマ（,）で区切ります（例: 1-3, 8, 12-）</translation>
        </message>
        <message>
            <source>The documents cannot be read: their disk does not answer.</source>
            <translation>ディスクが応答しないため、文書を読み込めません。</translation>
        </message>
        <message>
            <source>Make room on the disk, or ask your administrator whether you may still write the lists</source>
            <translation>ディスクの空き容量を増やすか、一覧への書き込みが許可されているか管理者に確認してください</translation>
        </message>
        <message>
            <source>Your changes to the profiles were not saved: their list could not be written. %1; then make the changes again.</source>
            <translation>一覧に書き込めなかったため、プロファイルの変更は保存されませんでした。%1。その後、もう一度変更してください。</translation>
        </message>
        <message>
            <source>What the printer says of its profiles was not saved: their list could not be written. The profiles are shown as they were. %1; then open this window again.</source>
            <translation>一覧に書き込めなかったため、プリンターから取得したプロファイルの情報は保存されませんでした。以前のプロファイルを表示しています。%1。その後、このウィンドウを開き直してください。</translation>
        </message>
        <message>
            <source>Another choice does not let it stand.</source>
            <translation>ほかの設定のために使用できません。</translation>
        </message>
        <message>
            <source>Close this message</source>
            <translation>このメッセージを閉じる</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>すべて表示</translation>
        </message>
        <message>
            <source>Show Less</source>
            <translation>折りたたむ</translation>
        </message>
        <message>
            <source>and %1 more</source>
            <translation>ほか%1件</translation>
        </message>
        <message>
            <source>More Options – %1</source>
            <translation>その他のオプション – %1</translation>
        </message>
        <message>
            <source>%1:</source>
            <comment>an option</comment>
            <translation>%1:</translation>
        </message>
        <message>
            <source>Restore De&amp;faults</source>
            <translation>デフォルトに戻す(&amp;F)</translation>
        </message>
        <message>
            <source>Preview (&amp;1)</source>
            <translation>プレビュー(&amp;1)</translation>
        </message>
        <message>
            <source>Page Up and Page Down turn the pages, Home and End go to the first and the last one.</source>
            <translation>Page Up、Page Downでページをめくり、Home、Endで最初と最後のページに移動します。</translation>
        </message>
        <message>
            <source>Previous page</source>
            <translation>前のページ</translation>
        </message>
        <message>
            <source>Next page</source>
            <translation>次のページ</translation>
        </message>
        <message>
            <source>Page in the preview</source>
            <translation>プレビューのページ</translation>
        </message>
        <message>
            <source>Pag&amp;e</source>
            <translation>ページ(&amp;E)</translation>
        </message>
        <message>
            <source>Add a document to see its pages.</source>
            <translation>文書を追加すると、ここにページが表示されます。</translation>
        </message>
        <message>
            <source>None of the chosen pages is in this document.</source>
            <translation>指定したページはこの文書にありません。</translation>
        </message>
        <message>
            <source>This is the first page.</source>
            <translation>最初のページです。</translation>
        </message>
        <message>
            <source>This is the last page.</source>
            <translation>最後のページです。</translation>
        </message>
        <message>
            <source>There are no pages to choose from.</source>
            <translation>選択できるページがありません。</translation>
        </message>
        <message>
            <source>of %1</source>
            <comment>pages of a document</comment>
            <translation>/ %1</translation>
        </message>
        <message>
            <source>Show the pages that will be printed</source>
            <translation>印刷されるページを表示します</translation>
        </message>
        <message>
            <source>Fold the preview away</source>
            <translation>プレビューを折りたたみます</translation>
        </message>
        <message>
            <source>%1 of %2</source>
            <comment>document</comment>
            <translation>%1 / %2</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>プレビュー</translation>
        </message>
        <message>
            <source>Preview of %1</source>
            <translation>「%1」のプレビュー</translation>
        </message>
        <message>
            <source>Preview of %1: %2</source>
            <translation>「%1」のプレビュー: %2</translation>
        </message>
        <message>
            <source>Preview, page %1 of %2 of %3</source>
            <translation>プレビュー、「%3」の%2ページ中%1ページ目</translation>
        </message>
        <message>
            <source>The options of this printer cannot be shown: the plug-in gives no view. Install it anew.</source>
            <translation>プラグインの画面を開けないため、このプリンターのオプションを表示できません。プラグインを再インストールしてください。</translation>
        </message>
        <message>
            <source>Not all of the choices could be restored. Look them through.</source>
            <translation>一部の設定を復元できませんでした。設定を確認してください。</translation>
        </message>
        <message>
            <source>%1 is there already and is not ours. Remove it, then try again.</source>
            <translation>「%1」はすでにありますが、このダイアログのものではありません。削除してからもう一度お試しください。</translation>
        </message>
        <message>
            <source>This system's portal goes by files such as %1. Copy the one for your desktop to ~/.config/xdg-desktop-portal, and add this line to its part [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</source>
            <translation>このシステムのポータルは「%1」などの設定ファイルに従います。お使いのデスクトップ用の設定ファイルを「~/.config/xdg-desktop-portal」にコピーし、[preferred]セクションに次の行を追加してください:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</translation>
        </message>
        <message>
            <source>The desktop portal is not installed. Install the package xdg-desktop-portal.</source>
            <translation>デスクトップポータルがインストールされていません。パッケージ「xdg-desktop-portal」をインストールしてください。</translation>
        </message>
        <message>
            <source>Programs that print through the portal show this dialog from your next login on.</source>
            <translation>ポータル経由で印刷するアプリでは、次回のログインからこのダイアログが表示されます。</translation>
        </message>
        <message>
            <source>It is off already.</source>
            <translation>すでにオフです。</translation>
        </message>
        <message>
            <source>%1 cannot be removed.</source>
            <translation>「%1」を削除できません。</translation>
        </message>
        <message>
            <source>Programs that print through the portal show the desktop's own dialog from your next login on.</source>
            <translation>ポータル経由で印刷するアプリでは、次回のログインからデスクトップ標準のダイアログが表示されます。</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2, line %3.</source>
            <translation>%1を使用できません（%2、%3行目）。</translation>
        </message>
        <message>
            <source>%1 is cut off: %2 is not closed.</source>
            <translation>%1は途中で切れています（%2が閉じられていません）。</translation>
        </message>
        <message>
            <source>Paper si&amp;ze:</source>
            <translation>用紙サイズ(&amp;Z):</translation>
        </message>
        <message>
            <source>Paper size</source>
            <translation>用紙サイズ</translation>
        </message>
        <message>
            <source>Paper t&amp;ype:</source>
            <translation>用紙の種類(&amp;Y):</translation>
        </message>
        <message>
            <source>Paper type</source>
            <translation>用紙の種類</translation>
        </message>
        <message>
            <source>&amp;Tray:</source>
            <translation>トレイ(&amp;T):</translation>
        </message>
        <message>
            <source>Tray</source>
            <translation>トレイ</translation>
        </message>
        <message>
            <source>T&amp;wo-sided:</source>
            <translation>両面印刷(&amp;W):</translation>
        </message>
        <message>
            <source>Two-sided</source>
            <translation>両面印刷</translation>
        </message>
        <message>
            <source>Resolutio&amp;n:</source>
            <translation>解像度(&amp;N):</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>解像度</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>全般の設定</translation>
        </message>
        <message>
            <source>M&amp;ore Options…</source>
            <translation>その他のオプション(&amp;O)…</translation>
        </message>
        <message>
            <source>M&amp;ore Options (%1 changed)…</source>
            <translation>その他のオプション（%1件変更）(&amp;O)…</translation>
        </message>
        <message>
            <source>All other options of this printer</source>
            <translation>このプリンターのその他のすべてのオプション</translation>
        </message>
        <message>
            <source>The PPD %1</source>
            <translation>PPDファイル「%1」</translation>
        </message>
        <message>
            <source>Printer's defaults</source>
            <translation>プリンターのデフォルト</translation>
        </message>
        <message>
            <source>Presets (*.json)</source>
            <translation>プリセット (*.json)</translation>
        </message>
        <message>
            <source>“%1”</source>
            <comment>a preset</comment>
            <translation>「%1」</translation>
        </message>
        <message>
            <source>The Printer's &amp;Defaults</source>
            <translation>プリンターのデフォルト(&amp;D)</translation>
        </message>
        <message>
            <source>As &amp;Last Time</source>
            <translation>前回と同じ(&amp;L)</translation>
        </message>
        <message>
            <source>&amp;Save as Preset…</source>
            <translation>プリセットとして保存(&amp;S)…</translation>
        </message>
        <message>
            <source>%1…</source>
            <comment>a preset</comment>
            <translation>%1…</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>名前を変更(&amp;R)</translation>
        </message>
        <message>
            <source>D&amp;elete</source>
            <translation>削除(&amp;E)</translation>
        </message>
        <message>
            <source>E&amp;xport</source>
            <translation>エクスポート(&amp;X)</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>インポート(&amp;I)…</translation>
        </message>
        <message>
            <source>As last time</source>
            <translation>前回と同じ</translation>
        </message>
        <message>
            <source>As in your last job.</source>
            <translation>前回のジョブと同じ設定です。</translation>
        </message>
        <message>
            <source>%1: all settings were so already.</source>
            <translation>%1: すでに同じ設定です。</translation>
        </message>
        <message>
            <source>%1: one setting changed.</source>
            <translation>%1: 1件の設定を変更しました。</translation>
        </message>
        <message>
            <source>%1: %2 settings changed.</source>
            <translation>%1: %2件の設定を変更しました。</translation>
        </message>
        <message>
            <source>Not used:</source>
            <translation>使用されない設定:</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <translation>ほか%1件。</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1, changed</source>
            <translation>プリセット(&amp;S): %1（変更あり）</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1</source>
            <translation>プリセット(&amp;S): %1</translation>
        </message>
        <message>
            <source>Start from the printer's defaults, from the last job or from choices that you saved</source>
            <translation>プリンターのデフォルト、前回のジョブ、または保存した設定から始めます</translation>
        </message>
        <message>
            <source>Save as Preset</source>
            <translation>プリセットとして保存</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Replace it?</source>
            <translation>プリセット「%1」はすでにあります。置き換えますか？</translation>
        </message>
        <message>
            <source>&amp;Replace</source>
            <translation>置き換え(&amp;R)</translation>
        </message>
        <message>
            <source>The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.</source>
            <translation>プリンター「%2」用に、設定を「%1」として保存しました。部数とページはジョブごとに指定します。</translation>
        </message>
        <message>
            <source>Rename Preset</source>
            <translation>プリセットの名前を変更</translation>
        </message>
        <message>
            <source>The preset “%1” is called “%2” now.</source>
            <translation>プリセット「%1」の名前を「%2」に変更しました。</translation>
        </message>
        <message>
            <source>Delete Preset</source>
            <translation>プリセットを削除</translation>
        </message>
        <message>
            <source>Delete the preset “%1” of “%2”? What is chosen now stays.</source>
            <translation>「%2」のプリセット「%1」を削除しますか？ 現在の設定は変わりません。</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>削除(&amp;D)</translation>
        </message>
        <message>
            <source>Choices of “%1”</source>
            <translation>「%1」の設定</translation>
        </message>
        <message>
            <source>The preset “%1” is deleted.</source>
            <translation>プリセット「%1」を削除しました。</translation>
        </message>
        <message>
            <source>Export Preset</source>
            <translation>プリセットをエクスポート</translation>
        </message>
        <message>
            <source>The preset “%1” is exported to %2.</source>
            <translation>プリセット「%1」を「%2」にエクスポートしました。</translation>
        </message>
        <message>
            <source>The preset “%1” could not be exported: %2: %3. Export it to a folder that you may write.</source>
            <translation>プリセット「%1」をエクスポートできませんでした（%2: %3）。書き込み可能なフォルダーにエクスポートしてください。</translation>
        </message>
        <message>
            <source>Import Preset</source>
            <translation>プリセットをインポート</translation>
        </message>
        <message>
            <source>;;All files (*)</source>
            <translation>;;すべてのファイル (*)</translation>
        </message>
        <message>
            <source>Choose a file that was exported as a preset.</source>
            <translation>プリセットとしてエクスポートしたファイルを選択してください。</translation>
        </message>
        <message>
            <source>%1 is imported and used</source>
            <comment>a preset</comment>
            <translation>%1をインポートして適用しました</translation>
        </message>
        <message>
            <source>%1 is imported and used as %2, since there is one of that name</source>
            <translation>同じ名前のプリセットがあるため、%1を%2としてインポートして適用しました</translation>
        </message>
        <message>
            <source>There is no preset “%1” for the printer “%2”.</source>
            <translation>プリンター「%2」にプリセット「%1」はありません。</translation>
        </message>
        <message>
            <source>The preset “%1” could not be saved: %2: %3. %4</source>
            <translation>プリセット「%1」を保存できませんでした（%2: %3）。%4</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Choose another name, or delete it first.</source>
            <translation>プリセット「%1」はすでにあります。別の名前を選ぶか、先に削除してください。</translation>
        </message>
        <message>
            <source>The preset “%1” could not be renamed: %2: %3. %4</source>
            <translation>プリセット「%1」の名前を変更できませんでした（%2: %3）。%4</translation>
        </message>
        <message>
            <source>The preset “%1” could not be deleted: %2: %3. %4</source>
            <translation>プリセット「%1」を削除できませんでした（%2: %3）。%4</translation>
        </message>
        <message>
            <source>Looking for printers…</source>
            <translation>プリンターを検索しています…</translation>
        </message>
        <message>
            <source>There is no printer. Add one in the system's printer settings, then look again.</source>
            <translation>プリンターがありません。システムのプリンター設定で追加してから、再検索してください。</translation>
        </message>
        <message>
            <source>Look &amp;Again</source>
            <translation>再検索(&amp;A)</translation>
        </message>
        <message>
            <source>There is no printer “%1”. Choose one from the list.</source>
            <translation>プリンター「%1」はありません。一覧から選択してください。</translation>
        </message>
        <message>
            <source>The options of “%1” are being prepared…</source>
            <translation>「%1」のオプションを準備しています…</translation>
        </message>
        <message>
            <source>Try &amp;Again</source>
            <translation>再試行(&amp;A)</translation>
        </message>
        <message>
            <source>This printer is stopped. You can print all the same: it keeps the job and prints it once it is resumed.</source>
            <translation>このプリンターは停止していますが、印刷を実行できます。ジョブは保存され、プリンターの再開後に印刷されます。</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>Print – %1 documents</source>
            <translation>印刷 – 文書%1件</translation>
        </message>
        <message>
            <source>The job is being sent…</source>
            <translation>ジョブを送信しています…</translation>
        </message>
        <message>
            <source>The printer's options are being prepared…</source>
            <translation>プリンターのオプションを準備しています…</translation>
        </message>
        <message>
            <source>Choose a printer first.</source>
            <translation>先にプリンターを選択してください。</translation>
        </message>
        <message>
            <source>This printer cannot be used. Choose another one.</source>
            <translation>このプリンターは使用できません。別のプリンターを選択してください。</translation>
        </message>
        <message>
            <source>This printer is no longer there. Choose another one.</source>
            <translation>このプリンターは見つからなくなりました。別のプリンターを選択してください。</translation>
        </message>
        <message>
            <source>Add a document to print.</source>
            <translation>印刷する文書を追加してください。</translation>
        </message>
        <message>
            <source>Some choices do not go together, and the printer would not follow all of them:

%1

Cancel, and settle it by the buttons above Print, or print all the same.</source>
            <translation>同時に使用できない設定があるため、一部の設定は印刷に反映されません:

%1

キャンセルして「印刷」の上にあるボタンで解決するか、このまま印刷してください。</translation>
        </message>
        <message>
            <source>Print &amp;Anyway</source>
            <translation>このまま印刷(&amp;A)</translation>
        </message>
        <message>
            <source>The job is being canceled…</source>
            <translation>ジョブをキャンセルしています…</translation>
        </message>
        <message>
            <source>As given</source>
            <translation>指定どおり</translation>
        </message>
        <message>
            <source>My defaults</source>
            <translation>自分のデフォルト</translation>
        </message>
        <message>
            <source>As sent</source>
            <translation>送信時のまま</translation>
        </message>
        <message>
            <source>From the ticket that was given.</source>
            <translation>指定された印刷設定です。</translation>
        </message>
        <message>
            <source>Your own default.</source>
            <translation>自分のデフォルトです。</translation>
        </message>
        <message>
            <source>As the job was sent.</source>
            <translation>ジョブの送信時の設定です。</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”. The printer's own are shown.</source>
            <translation>「%1」という名前のデフォルトはありません。プリンターのデフォルトを表示しています。</translation>
        </message>
        <message>
            <source>S&amp;ummary</source>
            <translation>概要(&amp;U)</translation>
        </message>
        <message>
            <source>Put all of the printer's settings back to what its driver proposes</source>
            <translation>プリンターの設定をすべてドライバーの推奨値に戻します</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>キャンセル(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>印刷(&amp;P)</translation>
        </message>
        <message>
            <source>Print the documents with these settings</source>
            <translation>この設定で文書を印刷します</translation>
        </message>
        <message>
            <source>There is no default printer; name one with --queue.</source>
            <translation>デフォルトのプリンターがありません。--queueでプリンターを指定してください。</translation>
        </message>
        <message>
            <source>The print server has no printer %1.</source>
            <translation>プリントサーバーにプリンター「%1」はありません。</translation>
        </message>
        <message>
            <source>The driver of the printer %1</source>
            <translation>プリンター「%1」のドライバー</translation>
        </message>
        <message>
            <source>The printer %1 has no driver. Add it again in the system's printer settings, with its driver.</source>
            <translation>プリンター「%1」にはドライバーがありません。システムのプリンター設定で、ドライバーを指定して追加し直してください。</translation>
        </message>
        <message>
            <source>%1 cannot be had: %2</source>
            <translation>%1を取得できません: %2</translation>
        </message>
        <message>
            <source>Printers</source>
            <translation>プリンター</translation>
        </message>
        <message>
            <source>Find by name, description or place</source>
            <translation>名前、説明、場所で検索</translation>
        </message>
        <message>
            <source>Find a printer by name, description or place</source>
            <translation>名前、説明、場所でプリンターを検索</translation>
        </message>
        <message>
            <source>No printer has “%1” in its name, description or place. Try fewer letters.</source>
            <translation>名前、説明、場所に「%1」を含むプリンターはありません。検索する文字を減らしてみてください。</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>プリンター</translation>
        </message>
        <message>
            <source>P&amp;rinter:</source>
            <translation>プリンター(&amp;R):</translation>
        </message>
        <message>
            <source>No printer</source>
            <translation>プリンターなし</translation>
        </message>
        <message>
            <source>%1: no color options</source>
            <translation>%1: カラーオプションなし</translation>
        </message>
        <message>
            <source>“%1” has no color options: its driver does not offer any that this dialog knows. You can print with its other settings.</source>
            <translation>このダイアログで使えるカラーオプションがドライバーにないため、「%1」ではカラーオプションを使用できません。その他の設定で印刷できます。</translation>
        </message>
        <message>
            <source>“%1” has no color options: the plug-in offers none. Install it anew to have them.</source>
            <translation>プラグインからカラーオプションを取得できないため、「%1」ではカラーオプションを使用できません。使用するには、プラグインを再インストールしてください。</translation>
        </message>
        <message>
            <source>The choices of “%1” could not be kept.</source>
            <translation>「%1」の設定を保存できませんでした。</translation>
        </message>
        <message>
            <source>Cancel &amp;Job</source>
            <translation>ジョブをキャンセル(&amp;J)</translation>
        </message>
        <message>
            <source>Progress of sending</source>
            <translation>送信の進行状況</translation>
        </message>
        <message>
            <source>Stop sending the job; the dialog stays as it is</source>
            <translation>ジョブの送信を中止します（ダイアログはそのまま残ります）</translation>
        </message>
        <message>
            <source>Sending: %1 of %2</source>
            <translation>送信中: %1 / %2</translation>
        </message>
        <message>
            <source>Sending…</source>
            <translation>送信中…</translation>
        </message>
        <message>
            <source>The print server %1 broke off its answer.</source>
            <translation>プリントサーバー「%1」の応答が途中で切れました。</translation>
        </message>
        <message>
            <source>The document is too large.</source>
            <translation>文書が大きすぎます。</translation>
        </message>
        <message>
            <source>The print server %1 gave an answer that cannot be read.</source>
            <translation>プリントサーバー「%1」の応答を読み取れません。</translation>
        </message>
        <message>
            <source>The print server %1 does not let you in; ask who looks after it.</source>
            <translation>プリントサーバー「%1」にアクセスする権限がありません。管理者に問い合わせてください。</translation>
        </message>
        <message>
            <source>The print server %1 refuses to answer: %2.</source>
            <translation>プリントサーバー「%1」が応答を拒否しました（%2）。</translation>
        </message>
        <message>
            <source>Drawing the page…</source>
            <translation>ページを描画しています…</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Summary</source>
            <translation>概要</translation>
        </message>
        <message>
            <source>Setting</source>
            <translation>設定</translation>
        </message>
        <message>
            <source>Choice</source>
            <translation>選択内容</translation>
        </message>
        <message>
            <source>There is nothing to sum up.</source>
            <translation>表示する項目はありません。</translation>
        </message>
        <message>
            <source>All as the printer proposes.</source>
            <translation>すべてプリンターの推奨値です。</translation>
        </message>
        <message>
            <source>“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.</source>
            <translation>「%1」はデフォルトの名前に使用できません。使用できるのは、文字、数字、「-」、「_」、「.」だけです。</translation>
        </message>
        <message>
            <source>Your present defaults could not be kept, so they were not replaced.</source>
            <translation>現在のデフォルトのコピーを保存できなかったため、デフォルトは変更していません。</translation>
        </message>
        <message>
            <source>There are no earlier defaults of “%1”.</source>
            <translation>「%1」には以前のデフォルトがありません。</translation>
        </message>
        <message>
            <source>W&amp;hy Is It Gray?</source>
            <translation>使えない理由(&amp;H)</translation>
        </message>
        <message>
            <source>Lists the controls that cannot be used now, and what makes them available</source>
            <translation>現在使えない項目と、使えるようにする方法を一覧表示します</translation>
        </message>
        <message>
            <source>Controls that cannot be used now</source>
            <translation>現在使えない項目</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <comment>name of a control, why it is gray</comment>
            <translation>%1: %2</translation>
        </message>
    </context>
</TS>
