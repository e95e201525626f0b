<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation>プログラムの起動中に表示される画像(パートナーは自社のロゴに置き換えられます)と、プログラムの情報を示すウィンドウです。</translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation>バージョン情報ウィンドウ</translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation>Qtのバージョンを含める(&amp;V)</translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation>バージョン情報ウィンドウを開く(&amp;W)</translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation>法的通知を開く(&amp;N)</translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder "%1".</source>
        <translation>法的通知は、フォルダー「%1」のコピーから開かれます。</translation>
    </message>
    <message>
        <source>There are no notices at "%1".</source>
        <translation>「%1」に法的通知はありません。</translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation>ユーザーインターフェイスをパスワードでロックできるプログラムです。ダイアログがパスワードを尋ね、プログラムがそれを保管してロックを行います。ここでは作業領域をロックします。</translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation>太字のタイトル</translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation>プルーフ、太字のタイトル</translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation>プルーフ、太字フォント</translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation>結果を追加(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation>太さを更新(&amp;U)</translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation>平均ΔE %1</translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation>最大ΔE %1</translation>
    </message>
    <message>
        <source>%1: ΔE %2</source>
        <translation>%1: ΔE %2</translation>
    </message>
</context>
<context>
    <name>BusyPage</name>
    <message>
        <source>A spinner over a list that is being filled, and a progress bar that many threads report to while they work.</source>
        <translation>項目が追加されていくリストの上のスピナーと、多数のスレッドが作業中に進捗を報告するプログレスバーです。</translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation>暗い肌色</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>明るい肌色</translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation>青空</translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation>木の葉</translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation>青い花</translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation>青緑</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation>紫みの青</translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation>中間の赤</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation>黄緑</translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation>オレンジイエロー</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>White 9.5</source>
        <translation>白 9.5</translation>
    </message>
    <message>
        <source>Neutral 8</source>
        <translation>無彩色 8</translation>
    </message>
    <message>
        <source>Neutral 6.5</source>
        <translation>無彩色 6.5</translation>
    </message>
    <message>
        <source>Neutral 5</source>
        <translation>無彩色 5</translation>
    </message>
    <message>
        <source>Neutral 3.5</source>
        <translation>無彩色 3.5</translation>
    </message>
    <message>
        <source>Black 2</source>
        <translation>黒 2</translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation>肌と自然</translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation>その他の色</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>原色</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>グレー</translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation>24パッチのチャートの色比較</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommonギャラリー</translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation>ページ {page} / {pages}</translation>
    </message>
</context>
<context>
    <name>ChartReportCover</name>
    <message>
        <source>ΔE*ab</source>
        <translation>ΔE*ab</translation>
    </message>
    <message>
        <source>ΔE00</source>
        <translation>ΔE00</translation>
    </message>
    <message>
        <source>Published averages of older charts against the current reference values</source>
        <translation>公表された旧チャートの平均値と現在の基準値の比較</translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation>左半分、セットA: 2014年11月より前に作られたチャートの平均</translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation>右半分、セットB: 2014年11月以降に作られたチャート</translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation>D50、2°観測者でのCIELAB、sRGBで表示</translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation>24パッチの色差</translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation>CIE76</translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation>CIEDE2000</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation>%1超</translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation>各パッチの%1、許容差%2</translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation>ΔE*ab: CIE76、CIELABでの距離。CIE 15, Colorimetry.</translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation>ΔE00: CIEDE2000、重みはすべて1。CIE 142:2001; ISO/CIE 11664-6.</translation>
    </message>
    <message>
        <source>G. Sharma, W. Wu, E. N. Dalal: The CIEDE2000 color-difference formula. Color Research and Application 30 (2005).</source>
        <translation>G. Sharma, W. Wu, E. N. Dalal: The CIEDE2000 color-difference formula. Color Research and Application 30 (2005).</translation>
    </message>
</context>
<context>
    <name>ChartReportTables</name>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>パッチ</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>A L*</source>
        <translation>A L*</translation>
    </message>
    <message>
        <source>A a*</source>
        <translation>A a*</translation>
    </message>
    <message>
        <source>A b*</source>
        <translation>A b*</translation>
    </message>
    <message>
        <source>B L*</source>
        <translation>B L*</translation>
    </message>
    <message>
        <source>B a*</source>
        <translation>B a*</translation>
    </message>
    <message>
        <source>B b*</source>
        <translation>B b*</translation>
    </message>
    <message>
        <source>ΔE*ab</source>
        <translation>ΔE*ab</translation>
    </message>
    <message>
        <source>ΔE00</source>
        <translation>ΔE00</translation>
    </message>
    <message>
        <source>Patch of set A</source>
        <translation>セットAのパッチ</translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation>セットBのパッチ</translation>
    </message>
    <message>
        <source>ΔL*</source>
        <translation>ΔL*</translation>
    </message>
    <message>
        <source>Δa*</source>
        <translation>Δa*</translation>
    </message>
    <message>
        <source>Δb*</source>
        <translation>Δb*</translation>
    </message>
</context>
<context>
    <name>ChartTreePanel</name>
    <message>
        <source>Tree with a grid</source>
        <translation>グリッド付きツリー</translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation>カラーチャート</translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation>グリッド線(&amp;G)</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>パッチ</translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation>チャートの2組の色がどれだけ離れているかを、バーと色見本で示します。曲線の背後にはスペクトルを示します。</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation>イルミナント(&amp;I):</translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation>D50、印刷物(&amp;5)</translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation>D65、昼光(&amp;6)</translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation>観測者(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation>2°視野(&amp;2)</translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation>10°視野(&amp;1)</translation>
    </message>
    <message>
        <source>White point:</source>
        <translation>白色点:</translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation>色差式(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>許容差(&amp;T):</translation>
    </message>
    <message>
        <source>ΔE </source>
        <comment>before a number</comment>
        <translation>ΔE </translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPlugin</name>
    <message>
        <source>Colour Measurement</source>
        <translation>色の測定</translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation>カラープリセットではありません。</translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation>バージョン%1は未知のものです。</translation>
    </message>
    <message>
        <source>"%1" is no rendering intent.</source>
        <translation>「%1」はレンダリングインテントではありません。</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>知覚的</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相対カラリメトリック</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>絶対カラリメトリック</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>名前が空です。</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>名前が%1文字を超えています。</translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation>名前に表示できない文字が含まれています。</translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation>黒点補正あり</translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation>黒点補正なし</translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation>%1、%2、用紙L* %3 a* %4 b* %5、インキ量最大%6 %</translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation>カラープリセット</translation>
    </message>
    <message>
        <source>"%1" cannot be saved.</source>
        <translation>「%1」を保存できません。</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>そのようなプリセットはありません。</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>コート紙</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>新聞用紙</translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation>コントラクトプルーフ</translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation>読み込めるプリセットがありません。</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>フォルダー「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation>複製できるものがありません。</translation>
    </message>
    <message>
        <source>"%1" cannot be imported.</source>
        <translation>「%1」をインポートできません。</translation>
    </message>
    <message>
        <source>"%1" cannot be written.</source>
        <translation>「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation>それはプリセット自体のフォルダーです。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>"%1" cannot be deleted.</source>
        <translation>「%1」を削除できません。</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>別の場所へのリンクです。</translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation>その間に別のプログラムが変更しました。その変更が失われてもよければ、もう一度実行してください。</translation>
    </message>
    <message>
        <source>Another preset is called "%1".</source>
        <translation>「%1」という名前の別のプリセットがあります。</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>フォルダー「%1」を作成できません。</translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>レンダリングインテント(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>黒点補正(&amp;B)</translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation>インキ量の上限(&amp;K):</translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation>用紙の白:</translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation>画面に表示される用紙の色</translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation>用紙の明度</translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation>用紙の緑–赤</translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation>用紙の青–黄</translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation>新しいプリセット</translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation>カラープリセット</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>プリセット:</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>プリセットなし</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>インポート...</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation>編集をキャンセル(&amp;N)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>プリセットの削除</translation>
    </message>
    <message>
        <source>Delete the preset "%1" for good?</source>
        <translation>プリセット「%1」を完全に削除しますか？</translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation>ボックス内の名前と設定を変更してから、保存してください。</translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation>プリセットがありません。新しく作成するか、インポートしてください。</translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation>設定は、プリセットを編集状態にすると変更できます。</translation>
    </message>
    <message>
        <source>Files in "%1" that are no presets, and are left as they are: %2</source>
        <translation>「%1」にあるプリセットではないファイル(そのまま残ります): %2</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットの保存</translation>
    </message>
    <message>
        <source>The preset "%1" has been edited. Save it?</source>
        <translation>プリセット「%1」は編集されています。保存しますか？</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>プリセットのインポート</translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation>カラープリセット (*.json)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>プリセットのエクスポート</translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation>ヘッダーでは%1バイト、実際は%2バイトです。</translation>
    </message>
    <message>
        <source>The signature is "%1" instead of "acsp".</source>
        <translation>シグネチャが「acsp」ではなく「%1」です。</translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation>バージョン%1には対応していません。</translation>
    </message>
    <message>
        <source>The device class "%1" is unknown.</source>
        <translation>デバイスクラス「%1」は未知のものです。</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>ファイルを開けません。</translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation>ファイルがヘッダーの途中、%1バイトで終わっています。</translation>
    </message>
    <message>
        <source>"%1" cannot be used as a colour profile.</source>
        <translation>「%1」はカラープロファイルとして使用できません。</translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation>コンボボックス</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation>測定条件(&amp;M):</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>用紙(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation>タングステン電球の光、紫外線は規定なし</translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation>昼光D50、紫外線はD50に準拠</translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation>紫外線なし</translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation>紫外線なし、偏光フィルターあり</translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation>フォーカス喪失: %1</translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation>測定条件</translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation>測定条件、無効</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation>用紙、無効</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation>フォルダー、無効</translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation>ほかのウィジェットを収めるもの: 同じ大きさのセルのフロー、正方形、グリップ付きスプリッター、折りたためるグループボックスや太字タイトルのグループボックス。さらに、回転したラベルもあります。</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation>スライダー付きの数値、スイッチ、無効のときに単なる値として読めるスピンボックス。さらに、1回の呼び出しで扱えるウィンドウ全体の状態です。</translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation>資格情報ダイアログ</translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation>資格情報の入力を求める(&amp;C)...</translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation>記憶の選択肢を表示(&amp;E)</translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether "Remember" is checked.</source>
        <translation>この選択肢があると、両方の欄が入力されて「OK」が押されるたびにダイアログがコールバックを呼び出します。「記憶する」がチェックされているかどうかは、ホスト側のプログラムが自分で調べます。</translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>まだ入力を求めていません。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルしました。</translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation>ユーザー: %1。</translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation>パスワードの文字数: %1。</translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation>コールバックが呼び出されました。</translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation>コールバックは呼び出されませんでした。</translation>
    </message>
    <message>
        <source>"Remember" is checked.</source>
        <translation>「記憶する」がチェックされています。</translation>
    </message>
    <message>
        <source>"Remember" is not checked.</source>
        <translation>「記憶する」はチェックされていません。</translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program's data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation>プログラムのデータの保存場所、つまり内部データベースまたはサーバーを設定するパネルです。このコンピューターで本物のMariaDBサーバーをオンにし、起こす障害を選び、どちらかのデータベースにある100万件の測定値のページをめくってみてください。</translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation>データベースパネル</translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation>ローカルMariaDBサーバー</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>障害(&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>パスワードの誤り</translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation>データベースの権限なし</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>応答しないサーバー</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>待ち受けなし</translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation>設定とダイアログ</translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation>設定を表示(&amp;H)</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>保存(&amp;E)</translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation>保存場所を尋ねる(&amp;K)...</translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation>データベースの設定</translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation>測定値の保存場所</translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation>パネルに表示されているままです。有効かどうかは問いません。</translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation>保存しました: 接続を開くことができます。</translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation>保存するものがありません: 接続を開くことができません。</translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation>ダイアログで確定しました: 接続を開くことができます。</translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation>キャンセルされたか、接続を開くことができません。</translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation>ペアの色差</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>色差式(&amp;F):</translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation>CIE76</translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation>CIEDE2000</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>色差式</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>ペア(&amp;I):</translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation>同じパッチ</translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation>異なるパッチ</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>ペア</translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation>しきい値:</translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation>%2ペア中%1ペアがしきい値%3を下回っています。平均は%4で、%5 %のペアがこれを下回ります。最大の色差は%6です。</translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation>CIEDE2000による色差。%1まで: 近い。</translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation>色差の色分け</translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation>無効なスピンボックス</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1、有効</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1、無効</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>入れ替え(&amp;W)</translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation>ページのシグナル(&amp;F): %1</translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation>ページのシグナル</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>DragDropPage</name>
    <message>
        <source>A field that takes files dropped from here or from any program, and folders that are sorted by dragging, in two views that stay in step.</source>
        <translation>ここからでも、どのプログラムからでもファイルをドロップできる欄と、ドラッグで並べ替えられるフォルダーです。フォルダーは2つのビューで同期して表示されます。</translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation>マネージャーウィンドウ</translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation>共有(&amp;H):</translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation>ドライブを追加(&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation>追加したドライブを削除(&amp;M)</translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation>フォルダーを表示(&amp;O)</translation>
    </message>
    <message>
        <source>Check "Enabled", and all active drives in the list are connected, your own too. A connected drive is a link in "%1". The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation>「有効」をチェックすると、リスト内のアクティブなドライブがすべて接続されます。ご自身のドライブも含まれます。接続されたドライブは「%1」内のリンクになります。エディターはポートを扱わないため、入力または編集したドライブは、上のサーバーではなく標準ポート445につながります。追加したドライブはギャラリーの終了時に削除されますが、編集したドライブはご自身のものとして残ります。</translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation>追加しました: %1。</translation>
    </message>
    <message>
        <source>Added: %1. Check "Enabled" to have it connected.</source>
        <translation>追加しました: %1。接続するには「有効」をチェックしてください。</translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "-".</source>
        <translation>%1はご自身のものになり、ポート%2につながります。エディターはポートを扱いません。「-」で削除してください。</translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation>すべてのドライブ文字が使用されています。</translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder "%1".</source>
        <translation>まだ接続されたドライブはありません: フォルダー「%1」がありません。</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>フォルダー「%1」を表示するプログラムがありません。</translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation>ドライブのログ(&amp;G):</translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation>マネージャーのシグナル(&amp;I):</translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation>プログラムが接続を維持するファイルサーバーのドライブです。このコンピューターで本物のSambaサーバーをオンにし、起こす障害を選び、そのドライブをリストに追加して、状態を確認してください。</translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation>「OK」がクリックされました。ダイアログはページに残ります。</translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation>「OK」でウィンドウが閉じ、色が引き継がれました。</translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation>「キャンセル」でウィンドウが閉じました。色は元のままです。</translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation>2か所にある1つのダイアログ</translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation>ページの一部としては、ダイアログはボタンで終了しません。ウィンドウとしては終了し、色を渡します。</translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation>ウィンドウとして開く(&amp;W)</translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec "%1".</source>
        <translation>コーデック「%1」はありません。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>読み取れません: %1。</translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation>テキストファイル</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>テキストファイル (*.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation>既定のエンコーディング</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>保存(&amp;E)</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>読み込み(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation>テキストファイル(&amp;T):</translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation>UTF-8の例</translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation>ISO-8859-1の例</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>ファイルを選択(&amp;F)...</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>ファイルのテキスト</translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation>ファイルは表示されません。%1</translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation>%1として読み取ったバイト数: %2。</translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation>このエンコーディングで読み取れない箇所: %1。</translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation>ファイルの残りは表示されません。</translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Short:</source>
        <translation>簡易:</translation>
    </message>
    <message>
        <source>With details:</source>
        <translation>詳細付き:</translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation>入れ子のエラーごとに1行</translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation>入れ子のエラーは折りたたみ</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>情報(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation>質問(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>警告(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation>重大(&amp;C)</translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation>情報(&amp;F)</translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation>質問(&amp;U)</translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation>警告(&amp;N)</translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation>重大(&amp;R)</translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation>%1、簡易</translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation>%1、詳細付き</translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation>ファイルをカラープロファイルとして読み取る</translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation>エラーの組み立て</translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation>例(&amp;X):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation>別のファイルをカラープロファイルとして読み取ります。</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation>タイトルがない場合はエラードメインを使用</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>説明(&amp;D):</translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation>エラードメイン(&amp;O):</translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation>入れ子のエラー(&amp;E):</translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation>1行に1つ。行頭の空白2つで上の行の下に入ります</translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation>全文(&amp;P):</translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation>伝える内容のないエラーではメッセージボックスは開きません。</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>Colour Profile</source>
        <translation>カラープロファイル</translation>
    </message>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>測定器のパスワードを読み取れません。</translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation>カラープロファイルとして読み取られたファイル</translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation>暗号化されたことのないパスワード</translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation>説明のない原因</translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation>報告する内容なし</translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation>失敗をユーザーに伝える方法: エラーとその原因となったエラー、それを表示するメッセージボックス、そしてマニュアルです。</translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation>プログラムの追加項目</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation>項目を追加(&amp;I)</translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation>項目を削除(&amp;M)</translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation>印刷室</translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation>色差</translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation>色差バーのしきい値をキーボードでも入力できると便利です。</translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation>フィードバックフォーム</translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation>ダイアログとして開く(&amp;D)</translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation>フィードバックはこのコンピューターのポート5050にのみ送信されます。サービスがオンの間は、そこで受け取ります。フォームは応答があるまで待ち続け、その間は何も押せません。
成功と表示されるのは、読み取り中に応答の一部がまだ届いている場合だけです。このコンピューターからの応答のように、すでに全体が届いている応答は調べられません。その場合、フィードバックが受け付けられていても、フォームはサービスが利用できない可能性があると表示します。届いた内容はセッションに表示されます。</translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation>ユーザーがプログラムの開発元に意見を送るためのフォームです。このコンピューターで本物のフィードバックサービスをオンにし、返す応答を選び、フィードバックを送信してください。</translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation>ローカルフィードバックサービス</translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation>応答(&amp;W):</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>受け付け</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation>%1秒後に受け付け</translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation>途中で切れる応答</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>JSONではない応答</translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation>ステータス500</translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>サービスの受信内容(&amp;G):</translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation>フォームとダイアログのシグナル(&amp;H):</translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation>ファイルを検索しています</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1を読み取っています</translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation>ギャラリーのファイル(&amp;G):</translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation>ギャラリーのファイル</translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation>欄に入れる(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation>ドロップされたファイル(&amp;D):</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>ここにファイルをドロップ</translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation>まだ何もドロップされていません</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>ドロップされた数: %1</translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation>ドロップされた数: %1、このコンピューターにないもの: %2</translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation>独自の順序(&amp;O):</translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation>アルファベット順(&amp;E):</translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation>独自の順序のフォルダー</translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation>アルファベット順のフォルダー</translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation>ドロップ可能な場所(&amp;M):</translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation>フォルダーの上と間</translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation>フォルダーの上のみ</translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation>フォルダーの間のみ</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下へ移動(&amp;W)</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>中へ移動(&amp;I)</translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation>外へ移動(&amp;T)</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation>新しいフォルダー %1</translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation>「%1」を削除しました</translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation>「%1」を移動しました</translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation>「%1」はそこへ移動できません</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation>非コート紙</translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation>コート紙、光沢</translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation>コート紙、マット</translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation>プルーフ</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>スタジオ</translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation>ノートPC</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>チャート</translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation>24色</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>グレー階調</translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program's folder; several paths are separated by "%1".</source>
        <translation>相対パスの起点はプログラムのフォルダーです。複数のパスは「%1」で区切ります。</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation>フォルダーは空です。</translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation>リンク切れ: %1</translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation>非常に長い名前: %1</translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation>読み取り権限なし: %1</translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation>フォルダーの内容を一覧する権限がありません。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>これはフォルダーではなくファイルです。</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>合計サイズ: %1</translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation>最終更新: %1</translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation>これ以降の検出結果は表示されません。</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>フォルダー %1</translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation>スキャンは%1秒で終了しました</translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation>スキャンは%1秒でキャンセルされました</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>フォルダー: %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>エラー: %1</translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation>スピナー付きのフォルダースキャン</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>スキャンを開始(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>フォルダーのスキャン</translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation>スピナーのサイズ(&amp;Z):</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1ピクセル</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation>最終更新</translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation>最大のフォルダー</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation>フォルダー%1個、ファイル%2個、これまでに%3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation>フォルダー%1個、ファイル%2個、%3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation>フォルダー%1個、ファイル%2個、%3(キャンセル)</translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation>折りたたみ式グループボックス</translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation>変換(&amp;O)</translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation>レンダリングインテント:</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>知覚的</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相対カラリメトリック</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>絶対カラリメトリック</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>黒点補正(&amp;B)</translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation>用紙をシミュレート</translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation>黒点は相対カラリメトリックの場合にのみ影響します。</translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation>注記を非表示のままにする(&amp;K)</translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation>黒点補正あり</translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation>用紙シミュレーションあり</translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation>%1にフォントがありません</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation>%1 (ファイル: %2)</translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation>このファイルはフォントではありません。</translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation>%1の見本</translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation>FTPパネル</translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation>状態を表示(&amp;U)</translation>
    </message>
    <message>
        <source>Show &amp;box "Active"</source>
        <translation>「アクティブ」ボックスを表示(&amp;B)</translation>
    </message>
    <message>
        <source>Show box "&amp;Erase"</source>
        <translation>「消去」ボックスを表示(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation>インポート用(&amp;I)</translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation>インポート元またはエクスポート先となるFTP/SFTPサーバーを設定するパネルです。このコンピューターで本物のサーバーをオンにし、起こす障害を選び、接続を確認してください。</translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation>ローカルサーバー</translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation>プロトコル(&amp;O):</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>SFTP</source>
        <translation>SFTP</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>障害(&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>パスワードの誤り</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>応答しないサーバー</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>待ち受けなし</translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>サーバーの受信内容(&amp;G):</translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation>パネルのシグナル(&amp;H):</translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation>設定とダイアログ</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>設定を表示(&amp;W)</translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation>インポートダイアログ(&amp;M)...</translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation>エクスポートダイアログ(&amp;X)...</translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation>ジョブの取得元</translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation>ジョブの送り先</translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommonギャラリー</translation>
    </message>
    <message>
        <source>with Qt %1</source>
        <translation>Qt %1を使用</translation>
    </message>
</context>
<context>
    <name>GalleryCommandLine</name>
    <message>
        <source>Shows what the TXGUICommon library has to offer.</source>
        <translation>TXGUICommonライブラリの機能を紹介します。</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation>このページを開きます: %1。</translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation>ファイル|フォルダー</translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation>指定したページの画像をこのPNGファイルに、または全ページの画像をこのフォルダーに保存し、パスを出力して終了します。</translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation>ウィジェットのスタイル: %1。</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>配色。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation>テキストの言語(例: en)。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1には値が必要です。</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>予期しない引数「%1」です。</translation>
    </message>
    <message>
        <source>There is no page "%1". The pages are: %2.</source>
        <translation>ページ「%1」はありません。使用できるページ: %2。</translation>
    </message>
    <message>
        <source>There is no style "%1". The styles are: %2.</source>
        <translation>スタイル「%1」はありません。使用できるスタイル: %2。</translation>
    </message>
    <message>
        <source>There is no language "%1". The languages are: %2.</source>
        <translation>言語「%1」はありません。使用できる言語: %2。</translation>
    </message>
    <message>
        <source>There is no palette "%1". The palettes are: light, dark, contrast.</source>
        <translation>パレット「%1」はありません。使用できるパレット: light, dark, contrast。</translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>フォルダー「%1」を作成できません。</translation>
    </message>
    <message>
        <source>The page "%1" was not ready after %2 seconds.</source>
        <translation>ページ「%1」は%2秒たっても準備できませんでした。</translation>
    </message>
    <message>
        <source>The picture "%1" cannot be written: %2.</source>
        <translation>画像「%1」に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommonギャラリー</translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation>パレット(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>スタイル(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>バージョン情報...</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation>このプログラムについて (%1)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>ハイコントラスト</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation>処理中と進捗</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>アクセス</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>コントロール</translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation>リストとデリゲート</translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation>コンテナーとラベル</translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation>ドラッグアンドドロップ</translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation>選択バー</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>データベース</translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation>Webインターフェイス</translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation>トリガーとエンコーディング</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>バリアント</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation>色差</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation>言語とスタイル</translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation>起動画面とバージョン情報</translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation>フォントを読み込んでいます...</translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation>ページを読み込んでいます...</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation>%1 - TXGUICommonギャラリー</translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation>全体表示(&amp;F)</translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation>各領域に画像全体を表示します。ウィンドウのサイズが変わっても保たれます</translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation>等分(&amp;H)</translation>
    </message>
    <message>
        <source>Each zone's share of the width: a half with two pictures, also when the window changes</source>
        <translation>各領域に割り当てられた幅に合わせます。画像が2つなら半分ずつで、ウィンドウのサイズが変わっても保たれます</translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation>100 %(&amp;0)</translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation>画像の1ピクセルを画面の1ピクセルで表示します</translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation>倍率(&amp;E):</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>オーバーレイ(&amp;V)</translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation>画像の名前、パッチの輪郭と番号</translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation>マーカー(&amp;M)</translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation>すべての画像の同じ位置に表示される十字線</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation>同じ倍率と位置で並べた画像: カラーチャート、シミュレートした印刷での同じチャート、そして両者の違いです。ドラッグで移動し、ホイールを回して詳しく見てください。</translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation>並べた画像</translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation>少々お待ちください...</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>チャート</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>色差</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation>この印刷は計算によるものです: 白くない用紙、黒くないインキ、%1パーセント太る網点、そしてわずかに見える網点の並びを再現しています。この4つの影響を示すもので、実際の印刷機の刷り上がりを示すプルーフではありません。</translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation>%2ファイル中、最初の%1ファイルです。</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation>画像のサイズが異なります: %1ピクセル。すべて最初の画像に合わせて配置されます。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation>これまでの表示を維持します。</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>読み取れません: %1。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation>JSONオブジェクトが含まれていません。</translation>
    </message>
    <message>
        <source>"%1" is not known.</source>
        <translation>「%1」は未知の項目です。</translation>
    </message>
    <message>
        <source>"%1" is no text.</source>
        <translation>「%1」はテキストではありません。</translation>
    </message>
    <message>
        <source>"%1" is neither true nor false.</source>
        <translation>「%1」はtrueでもfalseでもありません。</translation>
    </message>
    <message>
        <source>"%1" is no number from %2 to %3.</source>
        <translation>「%1」は%2から%3までの数値ではありません。</translation>
    </message>
    <message>
        <source>"%1" is no whole number.</source>
        <translation>「%1」は整数ではありません。</translation>
    </message>
    <message>
        <source>"%1" is no object.</source>
        <translation>「%1」はオブジェクトではありません。</translation>
    </message>
    <message>
        <source>"%1" is missing.</source>
        <translation>「%1」がありません。</translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation>テキストが空です。</translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation>JSONではありません(%1行目: %2)。</translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation>大きすぎます: %1を超えています。</translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation>値が多すぎます: %1を超えています。</translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation>画面では%1</translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation>画面の色域外、%1として表示</translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation>色の調合</translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation>明度L*(&amp;G):</translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation>緑–赤a*(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation>青–黄b*(&amp;B):</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>緑–赤</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>青–黄</translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation>正方形レイアウトと回転ラベル</translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation>b*: 青–黄</translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation>a*: 緑–赤</translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation>明度(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation>縦軸(&amp;V):</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>回転なし</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>時計回り</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>反時計回り</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>余白(&amp;M):</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation>戻す(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>取り出す(&amp;T)</translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation>明度%1の色とチャートのパッチ</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation>プログラムが、言語、スタイルシート、フォントを同じ場所にあるファイルから取り込む方法です。</translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation>ギャラリーのテキスト(&amp;T):</translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation>ギャラリーのテキスト</translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation>翻訳をインポート(&amp;I)...</translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation>%1に翻訳がありません</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation>%2内: %1</translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation>結果0: ファイルをコピーしました。</translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation>結果1: ファイルをコピーできませんでした。</translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation>結果2: キャンセルされました。</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation>ライブラリがリスト、テーブル、ツリーに描画するものと、コンボボックスです。</translation>
    </message>
</context>
<context>
    <name>LocalMariaDbServer</name>
    <message>
        <source>the user has no name</source>
        <translation>ユーザーの名前がありません</translation>
    </message>
    <message>
        <source>the database "%1" is the closed one</source>
        <translation>データベース「%1」はアクセスが禁止されています</translation>
    </message>
</context>
<context>
    <name>LocalServer</name>
    <message>
        <source>no folder for the server: %1</source>
        <translation>サーバー用のフォルダーがありません: %1</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1を開始できません: %2</translation>
    </message>
    <message>
        <source>%1 is not ready in time</source>
        <translation>%1の準備が時間内に終わりません</translation>
    </message>
    <message>
        <source>%1 ended before it was ready</source>
        <translation>%1は準備ができる前に終了しました</translation>
    </message>
    <message>
        <source>%1 told no port but "%2"</source>
        <translation>%1はポートではなく「%2」を返しました</translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>サーバー(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation>パネルに入力(&amp;F)</translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation>オン、%1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>サーバーが起動しませんでした: %1</translation>
    </message>
    <message>
        <source>"./dev setup" installs what is needed.</source>
        <translation>「./dev setup」で必要なものをインストールできます。</translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation>サーバーが自ら停止しました。</translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation>サーバーが自ら停止しました: %1</translation>
    </message>
</context>
<context>
    <name>LocalUpdateService</name>
    <message>
        <source>no folder for the replies: %1</source>
        <translation>応答用のフォルダーがありません: %1</translation>
    </message>
</context>
<context>
    <name>LocalWebServer</name>
    <message>
        <source>there is no file %1</source>
        <translation>ファイル%1がありません</translation>
    </message>
    <message>
        <source>%1 is no file with a certificate</source>
        <translation>%1は証明書のファイルではありません</translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation>ユーザーインターフェイスのロック</translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation>パスワードの保存形式</translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation>MD5ダイジェスト(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation>平文(&amp;P)</translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation>現在の保存内容</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>破棄(&amp;G)</translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation>ロック(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation>最初のパスワード(&amp;F)...</translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation>パスワードを変更(&amp;H)...</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation>保存されているパスワードでロックしました。</translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation>新しいパスワードでロックし、そのパスワードを保存しました。</translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation>キャンセルしました: 何もロックされず、保存内容は元のままです。</translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation>パスワードの変更後にキャンセルしました: 何もロックされず、新しいパスワードは保持されません。</translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation>新しいパスワードを保存しました。</translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation>キャンセルしました: 保存内容は元のままです。</translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation>パスワードを破棄しました。</translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation>保存されていたパスワードをダイジェストに置き換えました。</translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation>ダイジェストからパスワードは復元できません: パスワードを破棄しました。</translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation>正しいパスワードでロックを解除しました。</translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation>作業領域は開いています。</translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation>パスワードが設定されていません: ロック時に最初のパスワードを尋ねます。</translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation>作業領域</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt's own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation>このプログラム自身のログをライブで表示します: Qtのメッセージ、プログラムが出力する行、そして複数のスレッドからサブエントリ付きのエントリを書き込むジョブです。</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>行の書き込み</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>情報(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>警告(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation>エラー(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation>Qtの警告(&amp;Q)</translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation>ライブ表示(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation>ログウィンドウを開く(&amp;O)</translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation>ログのライブ表示</translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation>手動で書き込んだ情報</translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation>手動で書き込んだ警告</translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation>手動で書き込んだエラー</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2ピクセル、%3</translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation>起動画面のロゴ</translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation>インストール済みのロゴ</translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation>保管されているコピー</translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation>起動時の表示</translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation>ロゴをインストール(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation>ロゴを削除(&amp;R)...</translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation>コピーを削除(&amp;C)...</translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation>起動画面を表示(&amp;H)</translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation>ロゴのインストール</translation>
    </message>
    <message>
        <source>Remove the installed logo "%1"?</source>
        <translation>インストール済みのロゴ「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Remove the copy "%1"?</source>
        <translation>コピー「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation>クリックすると閉じます。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>まだありません。</translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation>なし: 画像がありません。</translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation>インストール済みのロゴです。</translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation>インストール済みのロゴがないため、コピーが表示されます。</translation>
    </message>
    <message>
        <source>The gallery's own picture.</source>
        <translation>ギャラリー自身の画像です。</translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation>送信メールを設定するパネルです。このコンピューターで本物のメールサーバーをオンにし、起こす障害を選び、テストメールを送信してください。</translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation>メールパネル</translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation>パネルの設定</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>設定を表示(&amp;W)</translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation>Mia様

ポスターのプルーフが用意できましたので、ご確認ください。

印刷室</translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation>プルーフの準備完了</translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation>ローカルメールサーバー</translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation>セキュリティ(&amp;C):</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>暗号化なし</translation>
    </message>
    <message>
        <source>STARTTLS</source>
        <translation>STARTTLS</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>障害(&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>パスワードの誤り</translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation>宛先の拒否</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>応答しないサーバー</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>待ち受けなし</translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation>ログインが必要(&amp;N)</translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation>マニュアルを開く(&amp;M)</translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation>存在しないマニュアルを開く(&amp;G)</translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system's viewer of PDF files.</source>
        <translation>このギャラリーのマニュアルを、システムのPDFビューアーで開きます。</translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation>測定値のテーブル</translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation>内部データベースのフォルダー(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation>件数(&amp;U):</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1行</translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation>テーブルを作成(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>On a server the table "%1" is dropped, made anew and left there.</source>
        <translation>サーバーでは、テーブル「%1」が削除されて新しく作成され、そのまま残ります。</translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation>内部データベースのフォルダー</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>キャンセルしています...</translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation>処理中...</translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation>テーブルは作成されませんでした: %1</translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation>%1秒で作成しました。</translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation>キャンセルしました: テーブルは作成されませんでした。</translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>パッチ</translation>
    </message>
    <message>
        <source>L*</source>
        <translation>L*</translation>
    </message>
    <message>
        <source>a*</source>
        <translation>a*</translation>
    </message>
    <message>
        <source>b*</source>
        <translation>b*</translation>
    </message>
    <message>
        <source>ΔE</source>
        <translation>ΔE</translation>
    </message>
    <message>
        <source>Measured (UTC)</source>
        <translation>測定日時(UTC)</translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation>データベースへの接続がありません。</translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation>測定値</translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation>ΔE下限(&amp;O):</translation>
    </message>
    <message>
        <source>all</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation>ページあたりの行数(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>行を削除(&amp;R)</translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation>SQL文(&amp;N):</translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation>「番号」または「ΔE」をクリックすると並べ替えられます。これらの列にはインデックスがあります。</translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation>データベースが拒否しました: %1</translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation>%1ミリ秒で応答がありました。</translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation>まだテーブルがありません。</translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo "%1" cannot be written: %2.</source>
        <translation>ロゴ「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>No copy is kept: the folder "%1" cannot be written.</source>
        <translation>コピーは保管されません: フォルダー「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder "%1".</source>
        <translation>コピーは保管されません: フォルダー「%1」がありません。</translation>
    </message>
    <message>
        <source>The logo "%1" cannot be removed: %2.</source>
        <translation>ロゴ「%1」を削除できません: %2。</translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation>全体図</translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation>最初の画像の全体</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation>プラグインが提供する設定ページと、そこから返される設定、そしてページにもウィンドウにも表示できるダイアログです。</translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation>プログラムの読み取り値</translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation>欄の内容</translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation>欄にはパスワードそのものが入っています。</translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation>欄にはパスワードではなく、マスクが入っています。</translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation>パスワード入力欄</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>値(&amp;V):</translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation>プログラムから設定(&amp;B)</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>T&amp;XPasswordLineEdit</source>
        <translation>TXPasswordLineEdit(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;QLineEdit</source>
        <translation>QLineEdit(&amp;Q)</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, enabled</source>
        <translation>TXPasswordLineEdit、有効</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation>TXPasswordLineEdit、無効</translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation>QLineEdit、有効</translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation>QLineEdit、無効</translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation>プログラムが設定した値は暗号化されたまま保持され、代わりに固定長のマスクが表示されます。欄で最初のキーが押されると、どちらも破棄されます。ユーザーが入力した文字は、ほかの入力欄と同じように欄に入ります。</translation>
    </message>
</context>
<context>
    <name>PatchDifferenceCell</name>
    <message>
        <source>ΔE %1</source>
        <translation>ΔE %1</translation>
    </message>
    <message>
        <source>%1, before November 2014</source>
        <translation>%1、2014年11月より前</translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation>%1、2014年11月以降</translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation>同じ大きさのセルのフロー</translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation>並んだ色見本</translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation>色見本(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>位置(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>挿入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>枠(&amp;F):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>ボックス</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation>スタイルに従う</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation>各%1 × %2ピクセル</translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation>色見本なし</translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation>区切り線付きリスト</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>パッチ</translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation>下に線を引く(&amp;B)</translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation>行を選択して、線の有無を切り替えてください。</translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation>行%1: 線を引きました</translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation>行%1: 線を消しました</translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation>画像と時刻のあるテーブル</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation>もう一度比較(&amp;C)</translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation>選択した行を比較します。最後の列を狭めると、まず時刻が、次に日付の末尾が省略されます。</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>パッチ</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>比較日時</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>可</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>不可</translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation>スプリッター</translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation>観察するパッチ</translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation>横に並べる(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation>グリップの幅(&amp;G):</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>L* %1
a* %2
b* %3
On the screen: %4</source>
        <translation>L* %1
a* %2
b* %3
画面: %4</translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation>チャートのパッチ</translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation>各パッチの左側は2014年11月より前のチャート、右側はそれ以降のチャートです。色差がしきい値に達したパッチは枠で囲まれます。</translation>
    </message>
</context>
<context>
    <name>PatchTint</name>
    <message>
        <source>%1, %2 %</source>
        <translation>%1、%2 %</translation>
    </message>
</context>
<context>
    <name>PatchWindow</name>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>レッド</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>グリーン</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>ブルー</translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation>ベタ色</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>パッチ</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>パッチ</translation>
    </message>
    <message>
        <source>L*</source>
        <translation>L*</translation>
    </message>
    <message>
        <source>a*</source>
        <translation>a*</translation>
    </message>
    <message>
        <source>b*</source>
        <translation>b*</translation>
    </message>
    <message>
        <source>Delta E</source>
        <translation>Delta E</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>一次色</translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation>刷り重ね</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>インキ</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>インキ</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>濃度</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>"%1" is no file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>「%1」を読み取れません: %2。</translation>
    </message>
    <message>
        <source>"%1" is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation>「%1」は大きすぎます: %2 × %3ピクセルで、%4 MBを超えるメモリが必要です。</translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation>画像を開く</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation>画像を開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation>チャートを表示(&amp;C)</translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation>表示中:</translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation>最初の2つの画像の間、CIEDE2000による</translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation>マウスを画像の上に移動してください。</translation>
    </message>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1、y %2</translation>
    </message>
</context>
<context>
    <name>PluginPanel</name>
    <message>
        <source>Changed; what is in bold is not saved.</source>
        <translation>変更されています。太字の項目は保存されていません。</translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation>これらの設定は保存されています。</translation>
    </message>
    <message>
        <source>The page's defaults; nothing is saved yet.</source>
        <translation>ページの既定値です。まだ何も保存されていません。</translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation>プラグインの設定ページ</translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder "%1"; put one there and start the gallery again.</source>
        <translation>プラグインが見つかりませんでした。プラグインはフォルダー「%1」で検索されます。そこにプラグインを置いて、ギャラリーを再起動してください。</translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation>見つかったプラグイン(&amp;P):</translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation>見つかったプラグイン</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>クラス</translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation>設定のライブ表示(&amp;K):</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>復元(&amp;R)</translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation>用紙(&amp;R):</translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation>コート紙、115 g/m²</translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation>非コート紙、120 g/m²</translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation>新聞用紙、45 g/m²</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>レンダリングインテント(&amp;I):</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相対カラリメトリック</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>絶対カラリメトリック</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>知覚的</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation>総インキ量の上限(&amp;N):</translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation>Delta E許容差(&amp;E):</translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation>黒点補正(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation>テキストを表示(&amp;X)</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>書式(&amp;M):</translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation>%pはパーセント、%vは値、%mはステップ数を表します。</translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation>反転(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>縦向き(&amp;U)</translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation>受信したメール</translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation>メール(&amp;M):</translation>
    </message>
    <message>
        <source>From</source>
        <translation>差出人</translation>
    </message>
    <message>
        <source>To</source>
        <translation>宛先</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>件名</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン名</translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation>受信時のまま(&amp;E):</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>クリア(&amp;R)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>ReportOptionsPanel</name>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>色差式(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>許容差(&amp;T):</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>ペア(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>用紙(&amp;P):</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>向き(&amp;R):</translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation>CIE76</translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation>CIEDE2000</translation>
    </message>
    <message>
        <source>By number</source>
        <translation>番号順</translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation>大きい順</translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation>小さい順</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>色差式</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>許容差</translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation>ペアの順序</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation>PDFのエクスポート</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF文書 (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>PDFをエクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>印刷(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation>PDFを開く(&amp;O)</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in "%1"</source>
        <translation>
            <numerusform>「%1」に%nページ</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation>キャンセルしました。何も書き込まれていません。</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>何も書き込まれていません。</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>印刷しました。</translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation>キャンセルしました。一部のページは印刷された可能性があります。</translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation>印刷に失敗しました。</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation>紙のページとしての色比較です: レポートのキャンバスに描画され、テーブルはページごとに分割され、PDFファイルまたはプリンターに出力されます。</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>レポートのページ</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation>会社名(&amp;C):</translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation>レポートの先頭に表示されます</translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation>担当者(&amp;E):</translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation>測定した人</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>用紙サイズ(&amp;Z):</translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation>各ページに日付を入れる(&amp;D)</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation>測定レポート</translation>
    </message>
</context>
<context>
    <name>ReportViewBar</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>ズーム(&amp;Z):</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>幅に合わせる</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>ページ全体</translation>
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
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
<context>
    <name>SambaServerPanel</name>
    <message>
        <source>Local Samba server</source>
        <translation>ローカルSambaサーバー</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>障害(&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>パスワードの誤り</translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation>未知の共有</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>応答しないサーバー</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>待ち受けなし</translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation>サーバーのポートが変わりました: 以前に追加したドライブはこのサーバーにつながりません。</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation>フォルダーのスキャン</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>スキャンを開始(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>フォルダーのスキャン</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>エントリ</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation>1秒あたりのエントリ</translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation>イベントをいつ繰り返すか、テキストファイルをどのエンコーディングで読み取るかを設定するパネルです。保存すると、ギャラリーが次のイベントを計算し、ファイルを読み直します。</translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation>バーのシグナル(&amp;G): %1</translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation>バーのシグナル</translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Import:</source>
        <translation>インポート:</translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation>ボックス内(&amp;X)</translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation>メニュー内(&amp;M)</translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation>名前の上書き入力を許可(&amp;T)</translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation>ラベルを表示(&amp;W):</translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation>ラベルのテキスト</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation>それぞれが1つのファイルであるプリセットのコレクションを、ユーザーが管理するためのバーです: 選択、作成、複製、名前の変更、インポート、エクスポート、削除ができます。</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation>サービスの応答は表示されません。</translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation>サービスの応答が大きすぎます。</translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation>%1で待ち受けているサービスがありません。</translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation>サービスが応答する前に接続を閉じました。</translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation>サービスから%1秒間応答がありません。</translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation>サービスがHTTPステータス%1を返しました。</translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation>サービスに問い合わせできません: %1。</translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>クリア(&amp;R)</translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation>共有の参照</translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation>このサーバーを参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation>ネットワークを参照(&amp;N)...</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>選択: %1</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>何も選択されませんでした。</translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation>何も見つかりませんでした。%1</translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation>理由はドライブのログに記録されています。</translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation>追加するドライブで使うサーバーの共有を選択してください。</translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation>小型版、並べ替えあり</translation>
    </message>
    <message>
        <source>By name:</source>
        <translation>名前順:</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>インポート...</translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation>同じプリセットを並べ替えプロキシ経由で表示します。ボタンのメニューがほかのボタンの代わりになります。</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation>スペクトル</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>開始(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>終了(&amp;T):</translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation>最初の波長</translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation>最後の波長</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> nm</translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation>各波長の光を目がどれだけ強く感じるか: CIE 1931標準観測者の関数yです。背後にはスペクトルが表示されます。</translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation>%1～%2 nmの分光視感効率</translation>
    </message>
</context>
<context>
    <name>SpectrumPlot</name>
    <message>
        <source>%1 nm</source>
        <translation>%1 nm</translation>
    </message>
</context>
<context>
    <name>StyleSamplePanel</name>
    <message>
        <source>Sample</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>ジョブ(&amp;J):</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>用紙(&amp;P):</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>コート紙</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>新聞用紙</translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation>部数(最大%1)(&amp;C):</translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation>トンボ(&amp;M)</translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation>付属のスタイルシートで描画</translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation>作成済みの部数</translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation>プルーフを印刷(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation>スタイルシート</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>スタイルシート(&amp;H):</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>スタイルシート</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation>適用中のテキスト(&amp;X):</translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation>適用中のテキスト</translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation>スタイルシートなし: ウィジェットはスタイルの描画どおりに表示されます。</translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation>スイッチ</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1ピクセル</translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation>%1ピクセルのスイッチ</translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation>%1ピクセルのスイッチ、無効</translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation>すべてオン(&amp;T)</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation>クリック数: 0</translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation>クリック数: %1、最後は%2ピクセルのスイッチ: %3</translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation>イベントは発生しません。</translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation>保存されている設定での次のイベントの日時:</translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation>イベントの起動条件</translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation>「毎時」を選択可能にする(&amp;H)</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation>読み込み(&amp;O)</translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation>測定器のキャリブレーション</translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation>作業領域はロックされています</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>パスワード(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>ロックを解除(&amp;U)</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>パスワードが違います。</translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation>アップデートダイアログ</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>アップデートを確認(&amp;U)</translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation>フォルダーに表示(&amp;O)</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>リリース</translation>
    </message>
    <message>
        <source>"Download and Install" writes the file to "%1", which a check makes where it is missing, "Download" to the folder that you choose. The file is a harmless text. "Install" opens it with the desktop's program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: "Show in Folder" shows the file.</source>
        <translation>「ダウンロードしてインストール」はファイルを「%1」に書き込みます。このフォルダーがない場合は、確認の際に作成されます。「ダウンロード」は選択したフォルダーに書き込みます。ファイルは無害なテキストです。「インストール」はデスクトップのテキスト用プログラムでファイルを開き、ギャラリーのすべてのウィンドウを閉じます。そのようなプログラムがない場合は何も起こりません。「フォルダーに表示」でファイルを表示できます。</translation>
    </message>
    <message>
        <source>There is no folder "%1".</source>
        <translation>フォルダー「%1」がありません。</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>フォルダー「%1」を表示するプログラムがありません。</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;このリリースの新機能&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;データベース: 100万行をページごとに表示&lt;/li&gt;&lt;li&gt;アップデート: 今ご覧になっているもの&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;詳しくは&lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;をご覧ください。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation>そして、もう1つあります。 </translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation>ユーザーが新しいリリースを探し、ダウンロードしてインストールするためのダイアログです。このコンピューターで本物のアップデートサービスをオンにし、提供する内容を選び、アップデートを確認してください。</translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation>ローカルアップデートサービス</translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation>提供内容(&amp;E):</translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation>新しいリリース</translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation>新しいリリース、ベータ版</translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation>遅いダウンロード</translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation>途中で切れるダウンロード</translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation>ファイルのないリリース</translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation>長いリリースノート</translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation>このビルドのリリース</translation>
    </message>
    <message>
        <source>Older release</source>
        <translation>古いリリース</translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation>空の応答</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>JSONではない応答</translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation>ステータス404</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>待ち受けなし</translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>サービスの受信内容(&amp;G):</translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation>ダイアログのシグナル(&amp;H):</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation>アップデートの設定</translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation>設定を読み込む(&amp;D)</translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation>設定を保存(&amp;T)</translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation>保存されている設定:</translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation>保存されている設定</translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation>上のダイアログは%1日ごとに自動で確認します。</translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation>上のダイアログは自動では確認しません。</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation>ホバー効果(&amp;H)</translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation>マウスの下にある最も内側の値を強調表示します。</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>プレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation>リストと辞書の内容をその行に表示します。</translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation>2階層を展開(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>折りたたむ(&amp;C)</translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation>値: %1個。行の文字数: %2。%3</translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation>%1ミリ秒で表示しました。</translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation>%1ミリ秒で展開しました。</translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation>%1ミリ秒で折りたたみました。</translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation>スライダー付きスピンボックス</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>露出</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source>darker</source>
        <translation>暗い</translation>
    </message>
    <message>
        <source>lighter</source>
        <translation>明るい</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation>Delta E許容差</translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation>誰にでも見える</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>スムージング</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation>総インキ量</translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation>用紙の地色</translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation>4色のベタ</translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation>総インキ量、無効</translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation>valueChanged(&amp;V): %1</translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation>valueChangedの発行</translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation>ボックスに入力した値はスライダーに渡されて戻ってくるため、1回の編集が2回以上通知されます。ホイールでは値は変わらず、ページがスクロールします。</translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation>ギャラリーの設定(&amp;G)</translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation>JSONファイル(&amp;N)...</translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation>サービスに問い合わせ(&amp;K)</translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation>任意の深さの値を1行の色付きテキストで表示し、階層ごとに展開できます: このギャラリーの設定、JSONファイル、またはアップデートサービスのライブの応答です。</translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation>このギャラリーの設定</translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation>まだ何も保存されていません: ギャラリーは終了時に設定を保存します。</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>JSONファイル</translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation>JSONファイル (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>File "%1"</source>
        <translation>ファイル「%1」</translation>
    </message>
    <message>
        <source>The file "%1" is not shown.</source>
        <translation>ファイル「%1」は表示されません。</translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation>アップデートサービスはオフです。スイッチでオンにできます。</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>応答を待っています...</translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation>アップデートサービスの応答</translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>フォルダー%1を作成できません</translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation>プログラムのWebインターフェイスを設定するパネルと、ギャラリーのページを提供する本物のWebサーバーです。127.0.0.1のリンクには、このコンピューターからのみアクセスできます。ほかのリンクは、ほかのコンピューターの接続を許可すると使えるようになります。</translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation>Webインターフェイスのパネル</translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation>Webサーバー</translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation>ほかのコンピューターの接続を許可(&amp;P)</translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation>許可しない場合、サーバーは127.0.0.1でのみ待ち受け、パネルのほかのリンクはつながりません。</translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation>ページにアクセス(&amp;T)</translation>
    </message>
    <message>
        <source>the box "Enabled" of the panel is not checked</source>
        <translation>パネルの「有効」ボックスがチェックされていません</translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation>HTTPSには証明書ファイルが必要です</translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>サーバーの受信内容(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation>ギャラリー自身のアクセス(&amp;O):</translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation>HTTPSを提供(&amp;H)</translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation>証明書を作成(&amp;C)</translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation>例を入力(&amp;X)</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>設定を表示(&amp;W)</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>保存(&amp;E)</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>読み込み(&amp;D)</translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation>Webインターフェイスの設定</translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation>ギャラリーの設定に保存しました。</translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation>ギャラリーの設定から読み込みました。</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>まだ何も保存されていません。</translation>
    </message>
    <message>
        <source>The example is for the user "%1" with the password "%2".</source>
        <translation>この例のユーザーは「%1」、パスワードは「%2」です。</translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation>localhostと127.0.0.1用の証明書は%1にあります。ブラウザーは警告を表示します。</translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation>証明書は作成されませんでした: %1</translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation>このページの作成日時</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>プロトコル</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>everybody</source>
        <translation>全員</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation>平均%1、最大%2。</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommonギャラリー</translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation>提供方法</translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation>ギャラリーのページ</translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation>チャートの新旧のパッチとΔE 2000</translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation>%1: ステータス%2、%3バイト</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>WidgetStatePanel</name>
    <message>
        <source>Widget state</source>
        <translation>ウィジェットの状態</translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program's settings. Another gives them back.</source>
        <translation>1回の呼び出しで、ウィンドウの位置とサイズ、スプリッター、ビューの列を、プログラムの設定用の入れ子の辞書1つに保持します。もう1回の呼び出しでそれらを復元します。</translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation>ウィンドウを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation>状態を保持(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation>配置を崩す(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation>状態を復元(&amp;R)</translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation>保持された状態(&amp;E):</translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation>保持された状態</translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>バイト</translation>
    </message>
</context>
<context>
    <name>WorkersPanel</name>
    <message>
        <source>Several workers, one delegate</source>
        <translation>複数のワーカー、1つのデリゲート</translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation>対象フォルダー(&amp;I):</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>参照(&amp;W)...</translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation>ファイルを読み取る(&amp;R)</translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation>キャンセル(&amp;E)</translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation>フォルダー内のファイルの読み取り</translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation>スレッド(&amp;H):</translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation>ワーカーの進捗</translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation>ワーカーの報告数</translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation>バーの描画回数</translation>
    </message>
    <message>
        <source>Files read</source>
        <translation>読み取ったファイル数</translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation>1秒あたりの読み取り量</translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>%2秒で%1を読み取りました。ほかのファイルのコピー: %3、読み取り不可: %4。</translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>%2秒で%1を読み取った後にキャンセルしました。ほかのファイルのコピー: %3、読み取り不可: %4。</translation>
    </message>
</context>
</TS>
