<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Launch at login is more reliable when the Tonquil is located in the Applications folder.</source>
        <translation>Tonquilが「Applications」フォルダにあると、ログイン時により確実に起動します。</translation>
    </message>
    <message>
        <source>If the app is not launching at next login, try moving it to the Applications folder.</source>
        <translation>次回のログイン時に起動しない場合は、アプリを「Applications」フォルダに移動してみてください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cannot enable remote configuration</source>
        <translation>リモート設定をオンにできません</translation>
    </message>
    <message>
        <source>Network broadcast does not appear to work. Please check that only one instance of Tonquil is running on this computer and that UDP ports 44188 and 48184 are not blocked by a firewall.</source>
        <translation>ネットワークのブロードキャストが機能していないようです。このコンピュータでTonquilが1つだけ動作していること、およびUDPポート44188と48184がファイアウォールで遮断されていないことを確認してください。</translation>
    </message>
</context>
<context>
    <name>CurvePlot</name>
    <message>
        <source>Red</source>
        <translation>赤</translation>
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
        <source>Output at input 0, 0.5 and 1.</source>
        <translation>入力0、0.5、1に対する出力。</translation>
    </message>
    <message>
        <source>The correction is off.</source>
        <translation>補正はオフです。</translation>
    </message>
    <message>
        <source>In</source>
        <translation>入</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Settings of one display (*.tonquil)</source>
        <translation>1台のディスプレイの設定 (*.tonquil)</translation>
    </message>
    <message>
        <source>Settings of all displays (*.tonquil-screens)</source>
        <translation>すべてのディスプレイの設定 (*.tonquil-screens)</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>ICC profile of one display (*.icc)</source>
        <translation>1台のディスプレイのICCプロファイル (*.icc)</translation>
    </message>
    <message>
        <source>Calibration of one display (*.cal)</source>
        <translation>1台のディスプレイのキャリブレーション (*.cal)</translation>
    </message>
    <message>
        <source>Settings, profiles and tables (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</source>
        <translation>設定、プロファイル、テーブル (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>プリセットの名前:</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>KVAboutBox</name>
    <message>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>バージョン %@</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>Tonquilについて</translation>
    </message>
    <message>
        <source>:/about/Credits.html</source>
        <translation>:/about/Credits_ja.html</translation>
    </message>
</context>
<context>
    <name>KVFluxCheck</name>
    <message>
        <source>%@ is present on this computer.</source>
        <translation>このコンピュータには%@があります。</translation>
    </message>
    <message>
        <source>[%1$@ installed, might interfer %2$@.]</source>
        <translation>%2$@は%1$@と同じカラーテーブルを変更するため、互いの設定を上書きすることがあります。%1$@を使用している間は、%2$@を終了するかオフにしてください。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Apply correction</source>
        <translation>補正を適用</translation>
    </message>
    <message>
        <source>Show panel</source>
        <translation>パネルを表示</translation>
    </message>
    <message>
        <source>Show targets</source>
        <translation>テストパターンを表示</translation>
    </message>
    <message>
        <source>Open settings…</source>
        <translation>設定を開く…</translation>
    </message>
    <message>
        <source>Save settings…</source>
        <translation>設定を保存…</translation>
    </message>
    <message>
        <source>Remote configuration is on</source>
        <translation>リモート設定はオンです</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>環境設定…</translation>
    </message>
    <message>
        <source>Tonquil on the web</source>
        <translation>WebのTonquil</translation>
    </message>
    <message>
        <source>About calibration targets</source>
        <translation>キャリブレーション用テストパターンについて</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>Tonquilについて</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>減らす</translation>
    </message>
    <message>
        <source>More</source>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>ポイント</translation>
    </message>
    <message>
        <source>Focused value</source>
        <translation>選択中の値</translation>
    </message>
    <message>
        <source>Channel strip</source>
        <translation>チャンネルストリップ</translation>
    </message>
    <message>
        <source>Stands for the slider of the focused control; its picker moves the focus.</source>
        <translation>選択中のコントロールのスライダを表します。チャンネルを選ぶと選択が移ります。</translation>
    </message>
    <message>
        <source>Tonquil</source>
        <translation>Tonquil</translation>
    </message>
    <message>
        <source>Which point of the curve the sliders move.</source>
        <translation>スライダで動かすカーブのポイント。</translation>
    </message>
    <message>
        <source>Transfer curves</source>
        <translation>伝達カーブ</translation>
    </message>
    <message>
        <source>Whether the displays show their curves or their own calibration.</source>
        <translation>ディスプレイにカーブを適用するか、元のキャリブレーションのままにするか。</translation>
    </message>
    <message>
        <source>Reset to calibration</source>
        <translation>キャリブレーションに戻す</translation>
    </message>
    <message>
        <source>Gives every display its own calibration back and makes the curves neutral.</source>
        <translation>各ディスプレイを元のキャリブレーションに戻し、カーブをニュートラルにします。</translation>
    </message>
    <message>
        <source>Opens the window of test patterns to look at while the sliders move.</source>
        <translation>スライダを動かしながら見るテストパターンのウインドウを開きます。</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Over calibration</source>
        <translation>キャリブレーションに重ねる</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>絶対</translation>
    </message>
    <message>
        <source>Whether the curve is laid over the display&apos;s calibration or replaces it.</source>
        <translation>カーブをディスプレイのキャリブレーションに重ねるか、置き換えるか。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>最近使った設定を開く</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Advanced panel</source>
        <translation>詳細パネル</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>ダークテーマ</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
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
        <source>Master</source>
        <translation>マスター</translation>
    </message>
    <message>
        <source>%1, %2 point</source>
        <translation>%1、%2ポイント</translation>
    </message>
    <message>
        <source>Close the panel</source>
        <translation>パネルを閉じる</translation>
    </message>
    <message>
        <source>Companions on the network may change the displays</source>
        <translation>ネットワーク上の連携アプリがディスプレイを変更できます</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Choose which displays are edited</source>
        <translation>編集するディスプレイを選択</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>編集対象: %1</translation>
    </message>
    <message>
        <source>Changes are not saved at the moment. Tonquil keeps trying.</source>
        <translation>現在、変更は保存されていません。Tonquil は保存を試み続けます。</translation>
    </message>
    <message>
        <source>All displays: an edit replaces the curve of each</source>
        <translation>すべてのディスプレイ：編集すると各ディスプレイのカーブが置き換わります</translation>
    </message>
    <message>
        <source>Identify displays</source>
        <translation>ディスプレイを識別</translation>
    </message>
    <message>
        <source>Hide the sliders of the colours</source>
        <translation>各色のスライダを隠す</translation>
    </message>
    <message>
        <source>Show the sliders of the colours</source>
        <translation>各色のスライダを表示</translation>
    </message>
    <message>
        <source>Hold to compare with the uncorrected display</source>
        <translation>押している間、補正前のディスプレイと比較</translation>
    </message>
    <message>
        <source>Corrects this display. Show targets and move the slider until stripes look plain.</source>
        <translation>ディスプレイを補正します。テストパターンを表示し、縞が消えるまでスライダを動かします。</translation>
    </message>
    <message>
        <source>Drag it, or turn the wheel over it or its number.</source>
        <translation>ドラッグするか、スライダまたは数値の上でホイールを回します。</translation>
    </message>
    <message>
        <source>With Ctrl a drag is four times as fine.</source>
        <translation>Ctrlキーを押すと4倍細かくドラッグできます。</translation>
    </message>
    <message>
        <source>With Shift the other colours follow.</source>
        <translation>Shiftキーを押すと他の色も連動します。</translation>
    </message>
    <message>
        <source>A double-click makes it neutral.</source>
        <translation>ダブルクリックでニュートラルな値になります。</translation>
    </message>
    <message>
        <source>An edit replaces the curve of each display</source>
        <translation>編集すると各ディスプレイのカーブが置き換わります</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>プリセットとして保存…</translation>
    </message>
    <message>
        <source>Make editable</source>
        <translation>編集可能にする</translation>
    </message>
    <message>
        <source>Tonquil: correction on</source>
        <translation>Tonquil：補正オン</translation>
    </message>
    <message>
        <source>Tonquil: correction off</source>
        <translation>Tonquil：補正オフ</translation>
    </message>
</context>
<context>
    <name>PanelSubject</name>
    <message>
        <source>No display</source>
        <translation>ディスプレイなし</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>すべてのディスプレイ</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Show the panel when Tonquil starts</source>
        <translation>Tonquilの起動時にパネルを表示</translation>
    </message>
    <message>
        <source>Start Tonquil at login</source>
        <translation>ログイン時にTonquilを起動</translation>
    </message>
    <message>
        <source>Correct the displays as soon as Tonquil starts</source>
        <translation>Tonquilの起動後すぐにディスプレイを補正</translation>
    </message>
    <message>
        <source>Apply the curves again every few seconds</source>
        <translation>数秒ごとにカーブを再適用</translation>
    </message>
    <message>
        <source>Show sliders for the single channels</source>
        <translation>チャンネルごとのスライダを表示</translation>
    </message>
    <message>
        <source>Show the channel strip</source>
        <translation>チャンネルストリップを表示</translation>
    </message>
    <message>
        <source>Show hints under targets</source>
        <translation>テストパターンの下にヒントを表示</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>ダークテーマ</translation>
    </message>
    <message>
        <source>The display under the panel</source>
        <translation>パネルがあるディスプレイ</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>すべてのディスプレイ</translation>
    </message>
    <message>
        <source>Shows the panel</source>
        <translation>パネルを表示する</translation>
    </message>
    <message>
        <source>Switches the correction on or off</source>
        <translation>補正のオン/オフを切り替える</translation>
    </message>
    <message>
        <source>Show Tonquil in:</source>
        <translation>Tonquilの表示場所:</translation>
    </message>
    <message>
        <source>The task bar</source>
        <translation>タスクバー</translation>
    </message>
    <message>
        <source>The status area</source>
        <translation>ステータス領域</translation>
    </message>
    <message>
        <source>Switch the correction on or off</source>
        <translation>補正のオン/オフを切り替え</translation>
    </message>
    <message>
        <source>Show the panel under the pointer</source>
        <translation>ポインタの位置にパネルを表示</translation>
    </message>
    <message>
        <source>Let companions on the local network read and set the curves</source>
        <translation>ローカルネットワーク上の連携アプリにカーブの読み取りと変更を許可</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Edits change:</source>
        <translation>変更の対象:</translation>
    </message>
    <message>
        <source>Starting Tonquil again:</source>
        <translation>Tonquilを再度起動したとき:</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>リモート</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>パネルを表示</translation>
    </message>
    <message>
        <source>Not needed here: no correction is lost unnoticed.</source>
        <translation>ここでは不要です。気付かないうちに補正が失われることはありません。</translation>
    </message>
    <message>
        <source>Change in desktop…</source>
        <translation>デスクトップで変更…</translation>
    </message>
    <message>
        <source>This desktop leaves hot keys to its own settings. Bind these commands to keys there:</source>
        <translation>このデスクトップではショートカットはデスクトップ側で設定します。次のコマンドをキーに割り当ててください:</translation>
    </message>
    <message>
        <source>No keys given yet</source>
        <translation>キーは未割り当て</translation>
    </message>
    <message>
        <source>Keep night light</source>
        <translation>夜間モードの色を保つ</translation>
    </message>
    <message>
        <source>There is no password: any computer there can do this.</source>
        <translation>パスワードはありません。ネットワーク上のどのコンピューターからも操作できます。</translation>
    </message>
</context>
<context>
    <name>Problem</name>
    <message>
        <source>UDP port 44188 cannot be used. Another program may have it. It is tried again every 5 seconds.</source>
        <translation>UDPポート44188を使用できません。ほかのプログラムが使用している可能性があります。5秒ごとに再試行します。</translation>
    </message>
    <message>
        <source>The panel is on no display. Move it onto one.</source>
        <translation>パネルがどのディスプレイ上にもありません。いずれかのディスプレイに移動してください。</translation>
    </message>
    <message>
        <source>There is no display that could be corrected.</source>
        <translation>補正できるディスプレイがありません。</translation>
    </message>
    <message>
        <source>No such display</source>
        <translation>ディスプレイが見つかりません</translation>
    </message>
    <message>
        <source>No display with the reference ID %@ is attached. tonquilctl displays lists them.</source>
        <translation>参照ID %@のディスプレイは接続されていません。一覧は「tonquilctl displays」で確認できます。</translation>
    </message>
    <message>
        <source>The file was not opened</source>
        <translation>ファイルを開けませんでした</translation>
    </message>
    <message>
        <source>No Matching Screens</source>
        <translation>一致するディスプレイがありません</translation>
    </message>
    <message>
        <source>Settings from this file apply to different screens than those available on this computer.</source>
        <translation>このファイルの設定は、このコンピュータで使用できるものとは別のディスプレイ用です。</translation>
    </message>
    <message>
        <source>It holds neither settings nor a whole table of 768 bytes. Nothing has been changed.</source>
        <translation>設定も、768バイトの完全なテーブルも含まれていません。何も変更されていません。</translation>
    </message>
    <message>
        <source>Saving failed</source>
        <translation>保存できませんでした</translation>
    </message>
    <message>
        <source>Could not save settings at this location.</source>
        <translation>この場所に設定を保存できませんでした。</translation>
    </message>
    <message>
        <source>The file name is empty or has a NUL in it.</source>
        <translation>ファイル名が空か、NUL文字が含まれています。</translation>
    </message>
    <message>
        <source>This key combination already does something else in Tonquil.</source>
        <translation>このキーの組み合わせは、Tonquilですでに別の操作に使われています。</translation>
    </message>
    <message>
        <source>Key combinations for all programs are not available on this desktop.</source>
        <translation>このデスクトップでは、全プログラム共通のキーの組み合わせを使用できません。</translation>
    </message>
    <message>
        <source>This display has no gamma ramp.</source>
        <translation>このディスプレイにはガンマテーブルがありません。</translation>
    </message>
    <message>
        <source>There is no X server to talk to: DISPLAY is not set.</source>
        <translation>接続できるXサーバがありません。DISPLAYが設定されていません。</translation>
    </message>
    <message>
        <source>The X server has no screen.</source>
        <translation>Xサーバにスクリーンがありません。</translation>
    </message>
    <message>
        <source>The X server has no RandR extension, so its displays cannot be corrected.</source>
        <translation>XサーバにRandR拡張がないため、ディスプレイを補正できません。</translation>
    </message>
    <message>
        <source>The X server&apos;s RandR extension is older than 1.3, so its displays cannot be corrected.</source>
        <translation>XサーバのRandR拡張が1.3より古いため、ディスプレイを補正できません。</translation>
    </message>
    <message>
        <source>This X server only draws into a Wayland desktop: setting its gamma ramps changes nothing.</source>
        <translation>このXサーバはWaylandデスクトップに描画しているだけなので、ガンマテーブルを設定しても何も変わりません。</translation>
    </message>
    <message>
        <source>This key cannot be part of a key combination for all programs.</source>
        <translation>このキーは、全プログラム共通のキーの組み合わせには使用できません。</translation>
    </message>
    <message>
        <source>The keyboard has no such modifier key for a key combination.</source>
        <translation>キーボードに、その組み合わせに必要な修飾キーがありません。</translation>
    </message>
    <message>
        <source>Tonquil itself already uses this key combination.</source>
        <translation>このキーの組み合わせは、すでにTonquil自身が使用しています。</translation>
    </message>
    <message>
        <source>The X server keeps this key combination for switching terminals.</source>
        <translation>このキーの組み合わせは、X サーバーが端末の切り替えに使います。</translation>
    </message>
    <message>
        <source>Another program already uses this key combination.</source>
        <translation>このキーの組み合わせは、すでに別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>The X server has no such key, so it cannot be part of a key combination.</source>
        <translation>Xサーバにこのキーがないため、キーの組み合わせには使用できません。</translation>
    </message>
    <message>
        <source>The X server refuses this key combination.</source>
        <translation>Xサーバがこのキーの組み合わせを拒否しました。</translation>
    </message>
    <message>
        <source>The X server has gone, so no key combination can be set.</source>
        <translation>Xサーバが終了したため、キーの組み合わせを設定できません。</translation>
    </message>
    <message>
        <source>The property list is damaged.</source>
        <translation>プロパティリストが壊れています。</translation>
    </message>
    <message>
        <source>The property list is too large or too deeply nested.</source>
        <translation>プロパティリストが大きすぎるか、階層が深すぎます。</translation>
    </message>
    <message>
        <source>This is not a property list.</source>
        <translation>これはプロパティリストではありません。</translation>
    </message>
    <message>
        <source>The property list is too large.</source>
        <translation>プロパティリストが大きすぎます。</translation>
    </message>
    <message>
        <source>There is not enough memory to read the property list.</source>
        <translation>メモリが足りないため、プロパティリストを読み込めません。</translation>
    </message>
    <message>
        <source>There is no room for the curves of so many more displays.</source>
        <translation>これほど多くのディスプレイの曲線を追加する余地はありません。</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>ディスクに空きがありません</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>ディスクの割り当てを使い切っています</translation>
    </message>
    <message>
        <source>the file would be larger than is allowed</source>
        <translation>ファイルが許可された大きさを超えます</translation>
    </message>
    <message>
        <source>you may not write there</source>
        <translation>そこに書き込む権限がありません</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>ディスクは読み取り専用です</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>フォルダがありません</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>パスの一部がフォルダではありません</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>名前が長すぎます</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>シンボリックリンクが循環しています</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>それはフォルダです</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>読み取り専用です</translation>
    </message>
    <message>
        <source>another program is saving it right now</source>
        <translation>別のプログラムが保存中です</translation>
    </message>
    <message>
        <source>The file could not be saved: its name is empty or has a NUL in it.</source>
        <translation>ファイルを保存できませんでした。名前が空か、NUL を含んでいます。</translation>
    </message>
    <message>
        <source>%@ was saved, but the disk may not have kept it: %@.</source>
        <translation>%@ は保存されましたが、ディスクに残っていない可能性があります: %@。</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@. The older file was kept.</source>
        <translation>%@ を保存できませんでした: %@。以前のファイルは残っています。</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@.</source>
        <translation>%@ を保存できませんでした: %@。</translation>
    </message>
    <message>
        <source>%@ is not a regular file.</source>
        <translation>%@ は通常のファイルではありません。</translation>
    </message>
    <message>
        <source>%@ could not be read: %@.</source>
        <translation>%@ を読み込めませんでした: %@。</translation>
    </message>
    <message>
        <source>No such file: %@.</source>
        <translation>ファイルがありません: %@。</translation>
    </message>
    <message>
        <source>%@ is not readable by you.</source>
        <translation>%@ を読み取る権限がありません。</translation>
    </message>
    <message>
        <source>%@ is a symbolic link that leads in a circle.</source>
        <translation>%@ は循環するシンボリックリンクです。</translation>
    </message>
    <message>
        <source>The file name is too long: %@.</source>
        <translation>ファイル名が長すぎます: %@。</translation>
    </message>
    <message>
        <source>%@ could not be opened: %@.</source>
        <translation>%@ を開けませんでした: %@。</translation>
    </message>
    <message>
        <source>%@ is a folder, not a file.</source>
        <translation>%@ はファイルではなくフォルダです。</translation>
    </message>
    <message>
        <source>%@ is larger than %@.</source>
        <translation>%@ は %@ を超えています。</translation>
    </message>
    <message>
        <source>The folder %@ could not be made: %@.</source>
        <translation>フォルダ %@ を作成できませんでした: %@。</translation>
    </message>
    <message>
        <source>%@ is damaged and cannot be moved aside: %@.</source>
        <translation>%@ は壊れており、退避できません: %@。</translation>
    </message>
    <message>
        <source>The file has curves for more than %@ displays.</source>
        <translation>このファイルには %@ 台を超えるディスプレイの曲線が含まれています。</translation>
    </message>
    <message>
        <source>There is no Wayland compositor to talk to: WAYLAND_DISPLAY is not set.</source>
        <translation>通信できる Wayland コンポジタがありません。WAYLAND_DISPLAY が設定されていません。</translation>
    </message>
    <message>
        <source>The Wayland compositor does not answer.</source>
        <translation>Wayland コンポジタが応答しません。</translation>
    </message>
    <message>
        <source>This Wayland desktop does not let programs correct its displays.</source>
        <translation>この Wayland デスクトップでは、プログラムがディスプレイを補正できません。</translation>
    </message>
    <message>
        <source>The compositor gives an impossible size for this display&apos;s gamma ramp.</source>
        <translation>コンポジタが報告したこのディスプレイのガンマテーブルのサイズは、ありえない値です。</translation>
    </message>
    <message>
        <source>Another program, such as a night light, holds this display&apos;s gamma ramp, or it has none.</source>
        <translation>夜間モードなど別のプログラムがこのディスプレイのガンマテーブルを使用しているか、このディスプレイにはガンマテーブルがありません。</translation>
    </message>
    <message>
        <source>The table can be edited now</source>
        <translation>テーブルを編集できるようになりました</translation>
    </message>
    <message>
        <source>A curve has taken its place that differs from it by %@ % of full level at most. Undo brings the table back.</source>
        <translation>テーブルは曲線に置き換えられました。差は最大でフルレベルの %@ % です。「取り消す」でテーブルに戻せます。</translation>
    </message>
    <message>
        <source>The calibration is not for a display.</source>
        <translation>このキャリブレーションはディスプレイ用ではありません。</translation>
    </message>
    <message>
        <source>The calibration file is damaged.</source>
        <translation>キャリブレーションファイルが壊れています。</translation>
    </message>
    <message>
        <source>There is no display whose table could be saved.</source>
        <translation>テーブルを保存できるディスプレイがありません。</translation>
    </message>
    <message>
        <source>The profile&apos;s calibration is damaged.</source>
        <translation>プロファイルのキャリブレーションが壊れています。</translation>
    </message>
    <message>
        <source>The profile is too large.</source>
        <translation>プロファイルが大きすぎます。</translation>
    </message>
    <message>
        <source>The colour profile is damaged.</source>
        <translation>カラープロファイルが壊れています。</translation>
    </message>
    <message>
        <source>The colour profile holds no calibration that could be put on a display.</source>
        <translation>カラープロファイルには、ディスプレイに適用できるキャリブレーションがありません。</translation>
    </message>
    <message>
        <source>The colour profile could not be made.</source>
        <translation>カラープロファイルを作成できませんでした。</translation>
    </message>
    <message>
        <source>It holds no settings.</source>
        <translation>設定が入っていません。</translation>
    </message>
    <message>
        <source>There is no preset called &quot;%@&quot;.</source>
        <translation>「%@」という名前のプリセットはありません。</translation>
    </message>
    <message>
        <source>There is a preset called &quot;%@&quot; already. Nothing was saved.</source>
        <translation>「%@」という名前のプリセットはすでにあります。何も保存されていません。</translation>
    </message>
    <message>
        <source>There is no display whose curve could be saved.</source>
        <translation>曲線を保存できるディスプレイがありません。</translation>
    </message>
    <message>
        <source>A preset&apos;s name has up to 50 characters, no slash, and no dot in front. Nothing was saved.</source>
        <translation>プリセットの名前は50文字以内で、スラッシュを含めず、ドットで始めないでください。何も保存されていません。</translation>
    </message>
    <message>
        <source>The folder of presets could not be made.</source>
        <translation>プリセットのフォルダを作成できませんでした。</translation>
    </message>
    <message>
        <source>Switch off the desktop&apos;s night light, or end whatever else corrects this display. Tonquil then takes it over within seconds.</source>
        <translation>デスクトップの夜間モードをオフにするか、このディスプレイを補正している別のプログラムを終了してください。数秒以内に Tonquil が引き継ぎます。</translation>
    </message>
    <message>
        <source>The colour profile with the correction cannot be saved.</source>
        <translation>補正を入れたカラープロファイルを保存できません。</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display while HDR is on.</source>
        <translation>HDR がオンの間、コンポジタはこのディスプレイのカラープロファイルを受け付けません。</translation>
    </message>
    <message>
        <source>The compositor refuses the colour profile for this display.</source>
        <translation>コンポジタがこのディスプレイのカラープロファイルを拒否しました。</translation>
    </message>
    <message>
        <source>This is not a KDE Plasma desktop.</source>
        <translation>これは KDE Plasma デスクトップではありません。</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display.</source>
        <translation>コンポジタはこのディスプレイのカラープロファイルを受け付けません。</translation>
    </message>
    <message>
        <source>Another program is calibrating this display.</source>
        <translation>別のプログラムがこのディスプレイをキャリブレーション中です。</translation>
    </message>
    <message>
        <source>The compositor refuses to have this display corrected.</source>
        <translation>コンポジタがこのディスプレイの補正を拒否しています。</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>セッションバスが応答しません。</translation>
    </message>
</context>
<context>
    <name>Targets</name>
    <message>
        <source>Colour</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Targets</source>
        <translation>テストパターン</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>テストパターン</translation>
    </message>
    <message>
        <source>From a little way off, the striped quarters of each coloured square should look as bright as the plain ones.</source>
        <translation>少し離れて見たとき、各色の四角の縞模様の部分が、無地の部分と同じ明るさに見えるのが理想です。</translation>
    </message>
    <message>
        <source>Every step should stand out from the next, down to black and up to white, and no grey should look tinted.</source>
        <translation>黒から白まで隣り合う段階がすべて見分けられ、グレーに色味がないのが理想です。</translation>
    </message>
</context>
<context>
    <name>tonquil::DDHotKeyTextField</name>
    <message>
        <source>Type a shortcut</source>
        <translation>キーを入力</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>tonquil::HotKeyClearButton</name>
    <message>
        <source>Clear shortcut</source>
        <translation>キーの組み合わせを消去</translation>
    </message>
</context>
</TS>
