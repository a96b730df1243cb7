<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <message>
            <source>Color Options</source>
            <translation>カラーオプション</translation>
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation>詳細カラーオプション</translation>
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation>詳細オプションを隠す</translation>
        </message>
        <message>
            <source>Management Profile</source>
            <extracomment>Manage Profiles…</extracomment>
            <translation>プロファイルの管理…</translation>
        </message>
        <message>
            <source>Download Manager</source>
            <translation>ダウンロードマネージャー</translation>
        </message>
        <message>
            <source>Quick Color</source>
            <translation>クイックカラー</translation>
        </message>
        <message>
            <source>Quick Color:</source>
            <translation>クイックカラー:</translation>
        </message>
        <message>
            <source>Brightness</source>
            <translation>明るさ</translation>
        </message>
        <message>
            <source>Brightness:</source>
            <translation>明るさ:</translation>
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation>グレースケールで印刷</translation>
        </message>
        <message>
            <source>Color Separation</source>
            <translation>色分解</translation>
        </message>
        <message>
            <source>EconoMode</source>
            <extracomment>Economy Print</extracomment>
            <translation>トナー節約</translation>
        </message>
        <message>
            <source>EdgeType</source>
            <extracomment>Edge Strength</extracomment>
            <translation>輪郭の強さ</translation>
        </message>
        <message>
            <source>EdgeType:</source>
            <extracomment>Edge Strength:</extracomment>
            <translation>輪郭の強さ:</translation>
        </message>
        <message>
            <source>AutoTrapping</source>
            <extracomment>Auto Trapping</extracomment>
            <translation>自動トラッピング</translation>
        </message>
        <message>
            <source>BlackOverprint</source>
            <extracomment>Black Overprint</extracomment>
            <translation>ブラックオーバープリント</translation>
        </message>
        <message>
            <source>BlackOverprint:</source>
            <extracomment>Black Overprint:</extracomment>
            <translation>ブラックオーバープリント:</translation>
        </message>
        <message>
            <source>Image</source>
            <translation>画像</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>文字</translation>
        </message>
        <message>
            <source>Graphics</source>
            <translation>グラフィックス</translation>
        </message>
        <message>
            <source>Simulation</source>
            <translation>シミュレーション</translation>
        </message>
        <message>
            <source>RGB Source:</source>
            <translation>RGBソース:</translation>
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation>RGBインテント:</translation>
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation>RGBグレーの処理:</translation>
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation>出力プロファイル:</translation>
        </message>
        <message>
            <source>Halftone:</source>
            <translation>ハーフトーン:</translation>
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <extracomment>Edge Enhancement:</extracomment>
            <translation>輪郭強調:</translation>
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation>シミュレーションプロファイル:</translation>
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation>紙色の再現:</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation>CMYKグレーの処理:</translation>
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation>画像のRGBソース</translation>
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation>画像のRGBインテント</translation>
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation>画像のRGBグレーの処理</translation>
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation>画像の出力プロファイル</translation>
        </message>
        <message>
            <source>Image Halftone</source>
            <translation>画像のハーフトーン</translation>
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <extracomment>Image Edge Enhancement</extracomment>
            <translation>画像の輪郭強調</translation>
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation>文字のRGBソース</translation>
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation>文字のRGBインテント</translation>
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation>文字のRGBグレーの処理</translation>
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation>文字の出力プロファイル</translation>
        </message>
        <message>
            <source>Text Halftone</source>
            <translation>文字のハーフトーン</translation>
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <extracomment>Text Edge Enhancement</extracomment>
            <translation>文字の輪郭強調</translation>
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation>グラフィックスのRGBソース</translation>
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation>グラフィックスのRGBインテント</translation>
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation>グラフィックスのRGBグレーの処理</translation>
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation>グラフィックスの出力プロファイル</translation>
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation>グラフィックスのハーフトーン</translation>
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <extracomment>Graphics Edge Enhancement</extracomment>
            <translation>グラフィックスの輪郭強調</translation>
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation>シミュレーションプロファイル</translation>
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation>紙色の再現</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation>CMYKグレーの処理</translation>
        </message>
        <message>
            <source>Disk</source>
            <translation>ディスク</translation>
        </message>
        <message>
            <source>Card</source>
            <translation>カード</translation>
        </message>
        <message>
            <source>ProfileTitle</source>
            <extracomment>Profile Management</extracomment>
            <translation>プロファイルの管理</translation>
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation>「%1」がオンのときは使用できません。この設定を使用するには、オフにしてください。</translation>
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation>「%1」が「%2」のときだけ使用できます。この設定を使用するには、その選択肢を選んでください。</translation>
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation>「%1」が「%2」のときは使用できません。この設定を使用するには、ほかの選択肢を選んでください。</translation>
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation>プロファイルを管理できるのは、印刷システムの管理者だけです。</translation>
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation>「%1」がオンのため、1件の設定は使用されません。</translation>
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation>「%1」がオンのため、%2件の設定は使用されません。</translation>
        </message>
        <message>
            <source>Turn Off</source>
            <translation>オフにする</translation>
        </message>
        <message>
            <source>Turn off %1</source>
            <translation>「%1」をオフにする</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>全般の設定</translation>
        </message>
        <message>
            <source>RGB</source>
            <extracomment>RGB Source</extracomment>
            <translation>RGBソース</translation>
        </message>
        <message>
            <source>SIM</source>
            <extracomment>Simulation</extracomment>
            <translation>シミュレーション</translation>
        </message>
        <message>
            <source>DST</source>
            <extracomment>Destination</extracomment>
            <translation>出力</translation>
        </message>
        <message>
            <source>Profile Class:</source>
            <extracomment>Profile Cla&amp;ss:</extracomment>
            <translation>プロファイルの種類(&amp;S):</translation>
        </message>
        <message>
            <source>Profiles:</source>
            <extracomment>&amp;Profiles:</extracomment>
            <translation>プロファイル(&amp;P):</translation>
        </message>
        <message>
            <source>Add</source>
            <extracomment>&amp;Add</extracomment>
            <translation>追加(&amp;A)</translation>
        </message>
        <message>
            <source>Edit</source>
            <extracomment>&amp;Edit</extracomment>
            <translation>編集(&amp;E)</translation>
        </message>
        <message>
            <source>Delete</source>
            <extracomment>&amp;Delete</extracomment>
            <translation>削除(&amp;D)</translation>
        </message>
        <message>
            <source>Entry</source>
            <translation>入力</translation>
        </message>
        <message>
            <source>File Name:</source>
            <extracomment>&amp;File Name:</extracomment>
            <translation>ファイル名(&amp;F):</translation>
        </message>
        <message>
            <source>Browse...</source>
            <extracomment>&amp;Browse…</extracomment>
            <translation>参照(&amp;B)…</translation>
        </message>
        <message>
            <source>Profile Name:</source>
            <extracomment>Profile &amp;Name:</extracomment>
            <translation>プロファイル名(&amp;N):</translation>
        </message>
        <message>
            <source>Location:</source>
            <extracomment>L&amp;ocation:</extracomment>
            <translation>保存場所(&amp;O):</translation>
        </message>
        <message>
            <source>Confirm Entry</source>
            <extracomment>&amp;Confirm Entry</extracomment>
            <translation>入力を確定(&amp;C)</translation>
        </message>
        <message>
            <source>Discard Entry</source>
            <extracomment>D&amp;iscard Entry</extracomment>
            <translation>入力を破棄(&amp;I)</translation>
        </message>
        <message>
            <source>OK</source>
            <extracomment>O&amp;K</extracomment>
            <translation>OK(&amp;K)</translation>
        </message>
        <message>
            <source>Cancel</source>
            <extracomment>Cance&amp;l</extracomment>
            <translation>キャンセル(&amp;L)</translation>
        </message>
        <message>
            <source>On Printer</source>
            <translation>プリンター内</translation>
        </message>
        <message>
            <source>File Name</source>
            <translation>ファイル名</translation>
        </message>
        <message>
            <source>Profile Name</source>
            <translation>プロファイル名</translation>
        </message>
        <message>
            <source>Location</source>
            <translation>保存場所</translation>
        </message>
        <message>
            <source>In Menu</source>
            <translation>メニュー</translation>
        </message>
        <message>
            <source>On the printer</source>
            <translation>プリンター内にあり</translation>
        </message>
        <message>
            <source>Not on the printer</source>
            <translation>プリンター内になし</translation>
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation>メニューに表示</translation>
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation>メニューに非表示</translation>
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation>プリンター内にあるプロファイルは削除できません</translation>
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation>プロファイルを選択</translation>
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation>NAME.ICC</translation>
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation>メニューに表示される名前</translation>
        </message>
        <message>
            <source>NameRule</source>
            <extracomment>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</extracomment>
            <translation>ファイル名: 半角27文字以内、続けてドットと3文字以内の拡張子。スペースと " * + , / : ; &lt; = &gt; ? @ [ \ ] | は使用できません。プロファイル名: 半角の英数字、記号、スペースで30文字以内。アクセント付き文字は使用できません。</translation>
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation>プロファイルはまだありません。ネットワークプリンターのプロファイルは、プリンターへの問い合わせ後に表示されます。手動で登録するには「追加」を使用します。</translation>
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation>入力（未確定）</translation>
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation>入力（破棄済み）</translation>
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation>入力: このファイルはすでに一覧にあります</translation>
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation>入力: 一覧がいっぱいです</translation>
        </message>
        <message>
            <source>Select a profile first</source>
            <extracomment>Select a profile first.</extracomment>
            <translation>先にプロファイルを選択してください。</translation>
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <extracomment>Confirm or discard the entry first.</extracomment>
            <translation>先に入力を確定または破棄してください。</translation>
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <extracomment>Press Add, or select a profile and press Edit.</extracomment>
            <translation>「追加」を押すか、プロファイルを選択して「編集」を押してください。</translation>
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <extracomment>Type a file name first; it cannot begin with a dot.</extracomment>
            <translation>先にファイル名を入力してください。先頭にドットは使用できません。</translation>
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <extracomment>The printer names this file; only the profile name can be changed.</extracomment>
            <translation>このファイル名はプリンターが決めたものです。変更できるのはプロファイル名だけです。</translation>
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <extracomment>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</extracomment>
            <translation>入力が確定されていません。「OK」では入力が反映されません。反映するには「入力を確定」を押してください。</translation>
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <extracomment>The printer reported this profile when it was last asked.</extracomment>
            <translation>前回の問い合わせで、プリンター内にあることが確認されました。</translation>
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <extracomment>The printer did not report this profile when it was last asked.</extracomment>
            <translation>前回の問い合わせで、プリンター内に見つかりませんでした。</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <extracomment>Entered by hand.</extracomment>
            <translation>手動で登録されました。</translation>
        </message>
    </context>
</TS>
