<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation>程序启动时显示的图片（合作伙伴可将其替换为徽标），以及介绍该程序的窗口。</translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation>“关于”窗口</translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation>显示 Qt 版本(&amp;V)</translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation>打开“关于”窗口(&amp;W)</translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation>打开法律声明(&amp;N)</translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder "%1".</source>
        <translation>声明从文件夹“%1”中的副本打开。</translation>
    </message>
    <message>
        <source>There are no notices at "%1".</source>
        <translation>“%1”处没有声明。</translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation>一个可用密码锁定用户界面的程序。对话框负责询问密码；程序保存密码并执行锁定，此处锁定的是工作区。</translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation>粗体标题</translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation>样张，粗体标题</translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation>样张，粗体字体</translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation>添加结果(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation>更新粗细(&amp;U)</translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation>未通过</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>已通过</translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation>平均 ΔE %1</translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation>最大 ΔE %1</translation>
    </message>
    <message>
        <source>%1: ΔE %2</source>
        <translation>%1：ΔE %2</translation>
    </message>
</context>
<context>
    <name>BusyPage</name>
    <message>
        <source>A spinner over a list that is being filled, and a progress bar that many threads report to while they work.</source>
        <translation>正在填充的列表上方的旋转指示器，以及由多个线程在工作时报告进度的进度条。</translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation>深肤色</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>浅肤色</translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation>天蓝色</translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation>叶绿色</translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation>蓝花色</translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation>蓝绿色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation>紫蓝色</translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation>中红色</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation>黄绿色</translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation>橙黄色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红色</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>White 9.5</source>
        <translation>白色 9.5</translation>
    </message>
    <message>
        <source>Neutral 8</source>
        <translation>中性灰 8</translation>
    </message>
    <message>
        <source>Neutral 6.5</source>
        <translation>中性灰 6.5</translation>
    </message>
    <message>
        <source>Neutral 5</source>
        <translation>中性灰 5</translation>
    </message>
    <message>
        <source>Neutral 3.5</source>
        <translation>中性灰 3.5</translation>
    </message>
    <message>
        <source>Black 2</source>
        <translation>黑色 2</translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation>肤色与自然色</translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation>其他颜色</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>原色</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>灰色</translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation>24 色块色卡的颜色比较</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon 展示程序</translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation>第 {page} 页，共 {pages} 页</translation>
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
        <translation>旧色卡的公布平均值与现行参考值的比较</translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation>左半，A 组：2014 年 11 月之前制作的色卡的平均值</translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation>右半，B 组：2014 年 11 月起制作的色卡</translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation>D50 照明体、2° 观察者下的 CIELAB，以 sRGB 显示</translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation>24 个色块的色差</translation>
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
        <translation>平均值</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation>大于 %1</translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation>各色块的 %1，容差 %2</translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation>ΔE*ab：CIE76，CIELAB 中的距离。CIE 15，Colorimetry。</translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation>ΔE00：CIEDE2000，所有权重均为 1。CIE 142:2001；ISO/CIE 11664-6。</translation>
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
        <translation>编号</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>色块</translation>
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
        <translation>A 组的色块</translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation>B 组的色块</translation>
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
        <translation>带网格的树</translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation>色卡</translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation>网格线(&amp;G)</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>色块</translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation>色卡的两组颜色相差多少：以条形、色样以及曲线背后的光谱来展示。</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation>照明体(&amp;I)：</translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation>D50，印刷品(&amp;5)</translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation>D65，日光(&amp;6)</translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation>观察者(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation>2° 视场(&amp;2)</translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation>10° 视场(&amp;1)</translation>
    </message>
    <message>
        <source>White point:</source>
        <translation>白点：</translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation>色差公式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>容差(&amp;T)：</translation>
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
        <translation>颜色测量</translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation>这不是颜色预设。</translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation>其版本 %1 未知。</translation>
    </message>
    <message>
        <source>"%1" is no rendering intent.</source>
        <translation>“%1”不是渲染意图。</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>可感知</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相对比色</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>绝对比色</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>名称为空。</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>名称超过 %1 个字符。</translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation>名称含有无法显示的字符。</translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation>使用黑场补偿</translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation>不使用黑场补偿</translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation>%1，%2，纸张 L* %3 a* %4 b* %5，墨量不超过 %6 %</translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation>颜色预设</translation>
    </message>
    <message>
        <source>"%1" cannot be saved.</source>
        <translation>无法保存“%1”。</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>没有该预设。</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>涂布纸</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>新闻纸</translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation>合同样张</translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation>无法加载任何预设。</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>无法读取文件夹“%1”。</translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation>没有可创建副本的内容。</translation>
    </message>
    <message>
        <source>"%1" cannot be imported.</source>
        <translation>无法导入“%1”。</translation>
    </message>
    <message>
        <source>"%1" cannot be written.</source>
        <translation>无法写入“%1”。</translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation>那是预设自身的文件夹。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>"%1" cannot be deleted.</source>
        <translation>无法删除“%1”。</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>这是指向其他位置的链接。</translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation>其间另一个程序更改了它。如要舍弃该更改，请再试一次。</translation>
    </message>
    <message>
        <source>Another preset is called "%1".</source>
        <translation>已有另一个预设名为“%1”。</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>渲染意图(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>黑场补偿(&amp;B)</translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation>墨量限制(&amp;K)：</translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation>纸白：</translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation>屏幕上显示的纸张</translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation>纸张的明度</translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation>纸张的绿到红</translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation>纸张的蓝到黄</translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation>新预设</translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation>颜色预设</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>预设：</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>无预设</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>导入...</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation>取消编辑(&amp;N)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>删除预设</translation>
    </message>
    <message>
        <source>Delete the preset "%1" for good?</source>
        <translation>要永久删除预设“%1”吗？</translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation>在框中更改名称，并更改设置，然后保存。</translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation>没有预设。请新建或导入一个预设。</translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation>编辑预设后即可更改设置。</translation>
    </message>
    <message>
        <source>Files in "%1" that are no presets, and are left as they are: %2</source>
        <translation>“%1”中不是预设的文件（保持原样）：%2</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>保存预设</translation>
    </message>
    <message>
        <source>The preset "%1" has been edited. Save it?</source>
        <translation>预设“%1”已编辑。要保存吗？</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>导入预设</translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation>颜色预设 (*.json)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>导出预设</translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation>文件头注明 %1 字节，文件实为 %2 字节。</translation>
    </message>
    <message>
        <source>The signature is "%1" instead of "acsp".</source>
        <translation>签名为“%1”，而非“acsp”。</translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation>不支持版本 %1。</translation>
    </message>
    <message>
        <source>The device class "%1" is unknown.</source>
        <translation>设备类别“%1”未知。</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>无法打开文件。</translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation>文件在文件头内结束，仅 %1 字节。</translation>
    </message>
    <message>
        <source>"%1" cannot be used as a colour profile.</source>
        <translation>“%1”不能用作颜色配置文件。</translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation>组合框</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation>测量条件(&amp;M)：</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>纸张(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation>钨丝灯光，紫外线未定义</translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation>D50 日光，紫外线同 D50</translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation>不含紫外线</translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation>不含紫外线，带偏振滤镜</translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation>失去焦点：%1</translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation>测量条件</translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation>测量条件，禁用</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation>纸张，禁用</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation>文件夹，禁用</translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation>容纳其他控件的容器：等大单元格的流式布局、正方形、带拖柄的分隔条、可折叠或带粗体标题的分组框；以及旋转的标签。</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation>旁边带滑块的数字、开关，以及禁用时如同普通值的微调框；还有一次调用即可保存的整个窗口的状态。</translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation>凭据对话框</translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation>询问凭据(&amp;C)...</translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation>提供“记住”选项(&amp;E)</translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether "Remember" is checked.</source>
        <translation>提供该选项时，每次在两个字段均已填写的情况下单击“确定”，对话框都会回调；“记住”是否勾选由宿主程序自行查询。</translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>尚未询问。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation>用户：%1。</translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation>密码的字符数：%1。</translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation>回调已被调用。</translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation>回调未被调用。</translation>
    </message>
    <message>
        <source>"Remember" is checked.</source>
        <translation>“记住”已勾选。</translation>
    </message>
    <message>
        <source>"Remember" is not checked.</source>
        <translation>“记住”未勾选。</translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program's data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation>设置程序数据存放位置的面板：内部数据库或服务器。您可以在此计算机上打开一个真实的 MariaDB 服务器，选择要发生的故障，并在任一数据库中翻阅一百万条测量数据。</translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation>数据库面板</translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation>本地 MariaDB 服务器</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>故障(&amp;T)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation>无数据库权限</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>服务器不响应</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>无服务监听</translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation>设置和对话框</translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation>显示设置(&amp;H)</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>保存(&amp;E)</translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation>询问(&amp;K)...</translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation>数据库设置</translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation>测量数据的存放位置</translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation>按面板中的当前内容，无论是否有效。</translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation>已保存：可以打开连接。</translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation>没有可保存的内容：无法打开连接。</translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation>已在对话框中确认：可以打开连接。</translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation>已取消，或无法打开连接。</translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation>色对的色差</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>公式(&amp;F)：</translation>
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
        <translation>公式</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>色对(&amp;I)：</translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation>相同色块</translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation>不同色块</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>色对</translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation>限值：</translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation>%2 个色对中有 %1 个低于限值 %3。平均值为 %4，%5 % 的色对低于该平均值；最大色差为 %6。</translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation>按 CIEDE2000 计算的色差。不超过 %1：接近。</translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation>色差的颜色</translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation>禁用的微调框</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1，启用</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1，禁用</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>交换(&amp;W)</translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation>页面的信号(&amp;F)：%1</translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation>页面的信号</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>DragDropPage</name>
    <message>
        <source>A field that takes files dropped from here or from any program, and folders that are sorted by dragging, in two views that stay in step.</source>
        <translation>一个可接收从此处或任意程序拖放的文件的字段，以及在两个保持同步的视图中通过拖动排序的文件夹。</translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation>管理器窗口</translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation>共享(&amp;H)：</translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation>添加驱动器(&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation>移除已添加的驱动器(&amp;M)</translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation>显示文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>Check "Enabled", and all active drives in the list are connected, your own too. A connected drive is a link in "%1". The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation>勾选“启用”后，列表中所有已激活的驱动器都会连接，包括您自己的驱动器。已连接的驱动器是“%1”中的一个链接。编辑器不涉及端口：您键入或编辑的驱动器会指向标准端口 445，而不是上面的服务器。展示程序结束时会移除已添加的驱动器；您编辑过的驱动器归您所有，会保留下来。</translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation>已添加：%1。</translation>
    </message>
    <message>
        <source>Added: %1. Check "Enabled" to have it connected.</source>
        <translation>已添加：%1。勾选“启用”即可连接。</translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "-".</source>
        <translation>%1 现在归您所有，并指向端口 %2：编辑器不涉及端口。可用“-”将其移除。</translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation>所有驱动器号均已占用。</translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder "%1".</source>
        <translation>尚未连接任何驱动器：没有文件夹“%1”。</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>没有程序可以显示文件夹“%1”。</translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation>驱动器日志(&amp;G)：</translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation>管理器的信号(&amp;I)：</translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation>由程序保持连接的文件服务器驱动器。您可以在此计算机上打开一个真实的 Samba 服务器，选择要发生的故障，将其驱动器添加到列表，并查看它们的状态。</translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation>已单击“确定”，对话框仍留在页面中。</translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation>“确定”关闭了窗口；其颜色已被采用。</translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation>“取消”关闭了窗口；颜色保持不变。</translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation>位于两处的对话框</translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation>作为页面的一部分时，对话框不会因其按钮而结束。作为窗口时则会结束，并交出其颜色。</translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation>作为窗口打开(&amp;W)</translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec "%1".</source>
        <translation>没有编解码器“%1”。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>无法读取：%1。</translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation>文本文件</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>文本文件 (*.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation>默认编码</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>保存(&amp;E)</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>加载(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation>文本文件(&amp;T)：</translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation>UTF-8 示例</translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation>ISO-8859-1 示例</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>选择文件(&amp;F)...</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>文件的文本</translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation>未显示该文件。%1</translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation>以 %1 读取的字节数：%2。</translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation>此编码无法读取的位置：%1。</translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation>文件的其余部分未显示。</translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Short:</source>
        <translation>简短：</translation>
    </message>
    <message>
        <source>With details:</source>
        <translation>带详情：</translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation>每个嵌套错误一行</translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation>嵌套错误已折叠</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>信息(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation>询问(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>警告(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation>严重(&amp;C)</translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation>信息(&amp;F)</translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation>询问(&amp;U)</translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation>警告(&amp;N)</translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation>严重(&amp;R)</translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation>%1，简短</translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation>%1，带详情</translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation>将文件读取为颜色配置文件</translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation>构造一个错误</translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation>示例(&amp;X)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation>将另一个文件读取为颜色配置文件。</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation>没有标题时以错误域代替</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>描述(&amp;D)：</translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation>错误域(&amp;O)：</translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation>嵌套错误(&amp;E)：</translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation>每行一个；前置两个空格表示置于上一行之下</translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation>完整文本(&amp;P)：</translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation>没有内容的错误不会打开消息框。</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>Colour Profile</source>
        <translation>颜色配置文件</translation>
    </message>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>无法读取测量设备的密码。</translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation>读取为颜色配置文件的文件</translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation>从未加密的密码</translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation>没有描述的原因</translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation>没有可报告的内容</translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation>故障如何传达给用户：错误及导致它的各个错误、显示它们的消息框，以及手册。</translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation>程序的附加字段</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation>添加字段(&amp;I)</translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation>移除字段(&amp;M)</translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation>印刷车间</translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation>色差</translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation>色差条的限值最好也能键入。</translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation>反馈表单</translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation>作为对话框打开(&amp;D)</translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation>消息只发送到此计算机的端口 5050，不会发往别处；服务打开时在该端口接收消息。表单会一直等待应答，期间无法进行任何操作。
只有在读取时仍有部分应答到达，表单才会报告成功。如果应答已完整到达（例如来自此计算机），表单不会查看它：即使消息已被接受，表单也会提示服务可能不可用。实际收到的内容显示在会话中。</translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation>用户用来写信给程序开发者的表单。您可以在此计算机上打开一个真实的反馈服务，选择它的应答，然后提交一条消息。</translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation>本地反馈服务</translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation>应答(&amp;W)：</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>已接受</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation>%1 秒后接受</translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation>中断的应答</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>不是 JSON 的应答</translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation>状态 500</translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>服务收到的内容(&amp;G)：</translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation>表单及其对话框的信号(&amp;H)：</translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation>正在查找文件</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>正在读取 %1</translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation>展示程序的文件(&amp;G)：</translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation>展示程序的文件</translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation>放入字段(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation>放置的文件(&amp;D)：</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>将文件拖放到此处</translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation>尚未放置任何内容</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>已放置：%1</translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation>已放置：%1，其中不在此计算机上：%2</translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation>自定义顺序(&amp;O)：</translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation>字母顺序(&amp;E)：</translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation>按自定义顺序排列的文件夹</translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation>按字母顺序排列的文件夹</translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation>可放置于(&amp;M)：</translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation>文件夹上和文件夹之间</translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation>仅文件夹上</translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation>仅文件夹之间</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>移入(&amp;I)</translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation>移出(&amp;T)</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation>新建文件夹 %1</translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation>“%1”已移除</translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation>“%1”已移动</translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation>“%1”无法移到该处</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation>非涂布</translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation>涂布，光面</translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation>涂布，哑光</translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation>样张</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>工作室</translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation>笔记本电脑</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>色卡</translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation>24 色</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>灰度级</translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program's folder; several paths are separated by "%1".</source>
        <translation>相对路径从程序的文件夹开始；多个路径以“%1”分隔。</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation>文件夹为空。</translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation>失效链接：%1</translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation>名称很长：%1</translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation>无读取权限：%1</translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation>无列出文件夹内容的权限。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>这是文件，不是文件夹。</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>总大小：%1</translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation>上次更改：%1</translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation>其余结果未列出。</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>文件夹 %1</translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation>扫描在 %1 秒后完成</translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation>扫描在 %1 秒后取消</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>文件夹：%1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>错误：%1</translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation>带旋转指示器的文件夹扫描</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>开始扫描(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>扫描文件夹</translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation>指示器大小(&amp;Z)：</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation>上次更改</translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation>最大的文件夹</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation>目前 %1 个文件夹，%2 个文件，%3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation>%1 个文件夹，%2 个文件，%3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation>%1 个文件夹，%2 个文件，%3；已取消</translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation>可折叠分组框</translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation>转换(&amp;O)</translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation>渲染意图：</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>可感知</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相对比色</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>绝对比色</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>黑场补偿(&amp;B)</translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation>模拟纸张</translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation>黑场仅对相对比色有效。</translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation>保持提示隐藏(&amp;K)</translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation>黑场已补偿</translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation>纸张已模拟</translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation>%1 中没有字体</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation>%1，来自 %2</translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation>此文件不是字体。</translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation>%1 字样</translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation>FTP 面板</translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation>显示状态(&amp;U)</translation>
    </message>
    <message>
        <source>Show &amp;box "Active"</source>
        <translation>显示复选框“激活”(&amp;B)</translation>
    </message>
    <message>
        <source>Show box "&amp;Erase"</source>
        <translation>显示复选框“删除”(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation>用于导入(&amp;I)</translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation>设置用于导入或导出的 FTP 或 SFTP 服务器的面板。您可以在此计算机上打开一个真实的服务器，选择要发生的故障，并检查连接。</translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation>本地服务器</translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation>协议(&amp;O)：</translation>
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
        <translation>故障(&amp;T)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>服务器不响应</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>无服务监听</translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>服务器收到的内容(&amp;G)：</translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation>面板的信号(&amp;H)：</translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation>设置和对话框</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>显示设置(&amp;W)</translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation>导入对话框(&amp;M)...</translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation>导出对话框(&amp;X)...</translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation>作业的来源</translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation>作业的去向</translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon 展示程序</translation>
    </message>
    <message>
        <source>with Qt %1</source>
        <translation>使用 Qt %1</translation>
    </message>
</context>
<context>
    <name>GalleryCommandLine</name>
    <message>
        <source>Shows what the TXGUICommon library has to offer.</source>
        <translation>展示 TXGUICommon 库提供的功能。</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>显示此帮助并退出。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation>打开此页面：%1。</translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation>文件|文件夹</translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation>将指定页面的图片保存为此 PNG 文件，或将每个页面的图片保存到此文件夹，输出路径并退出。</translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation>控件样式：%1。</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>颜色。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation>文本的语言，例如 en。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 需要一个值。</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>There is no page "%1". The pages are: %2.</source>
        <translation>没有页面“%1”。可用页面：%2。</translation>
    </message>
    <message>
        <source>There is no style "%1". The styles are: %2.</source>
        <translation>没有样式“%1”。可用样式：%2。</translation>
    </message>
    <message>
        <source>There is no language "%1". The languages are: %2.</source>
        <translation>没有语言“%1”。可用语言：%2。</translation>
    </message>
    <message>
        <source>There is no palette "%1". The palettes are: light, dark, contrast.</source>
        <translation>没有调色板“%1”。可用调色板：light、dark、contrast。</translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>The page "%1" was not ready after %2 seconds.</source>
        <translation>页面“%1”在 %2 秒后仍未就绪。</translation>
    </message>
    <message>
        <source>The picture "%1" cannot be written: %2.</source>
        <translation>无法写入图片“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon 展示程序</translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation>调色板(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>样式(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>关于...</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation>关于此程序 (%1)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>高对比度</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation>忙碌和进度</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>访问</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation>列表和委托</translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation>容器和标签</translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation>拖放</translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation>选择栏</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>邮件</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>数据库</translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation>Web 界面</translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation>触发和编码</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>变体</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation>色差</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>反馈</translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation>语言和样式</translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation>启动画面和“关于”</translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation>正在加载字体...</translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation>正在加载页面...</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation>%1 - TXGUICommon 展示程序</translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation>每个区域中显示整张图片，窗口变化时亦然</translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation>均分(&amp;H)</translation>
    </message>
    <message>
        <source>Each zone's share of the width: a half with two pictures, also when the window changes</source>
        <translation>按每个区域所占的宽度显示：两张图片时各占一半，窗口变化时亦然</translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation>100 %(&amp;0)</translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation>图片的一个像素对应屏幕的一个像素</translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation>比例(&amp;E)：</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>叠加信息(&amp;V)</translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation>图片名称、色块轮廓和编号</translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation>标记(&amp;M)</translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation>所有图片中同一位置的十字线</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation>以相同比例和位置并排显示的图片：一张色卡、模拟印刷中的同一色卡，以及两者的差异。拖动图片可移动，滚动滚轮可细看。</translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation>并排图片</translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation>请稍候...</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>色卡</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷效果</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>色差</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation>印刷效果由计算得出：不够白的纸张、不够黑的油墨、扩大 %1 % 的网点以及少许网纹。它只显示这四个因素的影响，不能作为印刷机实际印刷效果的样张。</translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation>%2 个文件中的前 %1 个。</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation>图片大小不同：%1 像素。全部按第一张图片排列。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation>之前显示的内容保持不变。</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>无法读取：%1。</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>这不是文件。</translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation>其中没有 JSON 对象。</translation>
    </message>
    <message>
        <source>"%1" is not known.</source>
        <translation>“%1”未知。</translation>
    </message>
    <message>
        <source>"%1" is no text.</source>
        <translation>“%1”不是文本。</translation>
    </message>
    <message>
        <source>"%1" is neither true nor false.</source>
        <translation>“%1”既不是 true 也不是 false。</translation>
    </message>
    <message>
        <source>"%1" is no number from %2 to %3.</source>
        <translation>“%1”不是 %2 到 %3 之间的数字。</translation>
    </message>
    <message>
        <source>"%1" is no whole number.</source>
        <translation>“%1”不是整数。</translation>
    </message>
    <message>
        <source>"%1" is no object.</source>
        <translation>“%1”不是对象。</translation>
    </message>
    <message>
        <source>"%1" is missing.</source>
        <translation>缺少“%1”。</translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation>文本为空。</translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation>文本不是 JSON（第 %1 行：%2）。</translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation>文本过大：超过 %1。</translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation>文本包含的值过多：超过 %1。</translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation>屏幕上为 %1</translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation>超出屏幕范围；显示为 %1</translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation>调配颜色</translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation>明度 L*(&amp;G)：</translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation>绿-红 a*(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation>蓝-黄 b*(&amp;B)：</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>明度</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>绿到红</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>蓝到黄</translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation>正方形布局和旋转的标签</translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation>b*：蓝到黄</translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation>a*：绿到红</translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation>明度(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation>纵轴(&amp;V)：</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>不旋转</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>顺时针</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>逆时针</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>边距(&amp;M)：</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation>放回(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>取出(&amp;T)</translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation>明度 %1 的颜色，以及色卡的色块</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation>程序如何从旁边的文件中获取其语言、样式表和字体。</translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation>展示程序的文本(&amp;T)：</translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation>展示程序的文本</translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation>导入翻译(&amp;I)...</translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation>%1 中没有翻译</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation>%1，位于 %2</translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation>结果 0：文件已复制。</translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation>结果 1：文件未复制。</translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation>结果 2：已取消。</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation>库在列表、表格和树中绘制的内容，以及其组合框。</translation>
    </message>
</context>
<context>
    <name>LocalMariaDbServer</name>
    <message>
        <source>the user has no name</source>
        <translation>用户没有名称</translation>
    </message>
    <message>
        <source>the database "%1" is the closed one</source>
        <translation>数据库“%1”是不开放的那个</translation>
    </message>
</context>
<context>
    <name>LocalServer</name>
    <message>
        <source>no folder for the server: %1</source>
        <translation>没有服务器的文件夹：%1</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1 无法启动：%2</translation>
    </message>
    <message>
        <source>%1 is not ready in time</source>
        <translation>%1 未能及时就绪</translation>
    </message>
    <message>
        <source>%1 ended before it was ready</source>
        <translation>%1 在就绪之前已结束</translation>
    </message>
    <message>
        <source>%1 told no port but "%2"</source>
        <translation>%1 没有给出端口，而是“%2”</translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>服务器(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation>填写面板(&amp;F)</translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation>已打开，位于 %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>服务器未启动：%1</translation>
    </message>
    <message>
        <source>"./dev setup" installs what is needed.</source>
        <translation>“./dev setup”会安装所需的内容。</translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation>服务器已自行停止。</translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation>服务器已自行停止：%1</translation>
    </message>
</context>
<context>
    <name>LocalUpdateService</name>
    <message>
        <source>no folder for the replies: %1</source>
        <translation>没有应答的文件夹：%1</translation>
    </message>
</context>
<context>
    <name>LocalWebServer</name>
    <message>
        <source>there is no file %1</source>
        <translation>没有文件 %1</translation>
    </message>
    <message>
        <source>%1 is no file with a certificate</source>
        <translation>%1 不是含有证书的文件</translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation>锁定用户界面</translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation>密码存储方式</translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation>MD5 摘要(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation>明文(&amp;P)</translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation>当前存储内容</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>清除(&amp;G)</translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation>锁定(&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation>首个密码(&amp;F)...</translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation>更改密码(&amp;H)...</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation>已用存储的密码锁定。</translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation>已用新密码锁定，新密码现已存储。</translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation>已取消：未锁定，存储的内容保持不变。</translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation>更改密码后已取消：未锁定，新密码未保留。</translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation>新密码已存储。</translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation>已取消：存储的内容保持不变。</translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation>密码已清除。</translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation>存储的密码已替换为其摘要。</translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation>摘要无法还原为密码：密码已清除。</translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation>已用正确的密码解锁。</translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation>工作区已开放。</translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation>尚未设置密码：锁定时会要求设置首个密码。</translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation>工作区</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt's own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation>此程序的实时日志：Qt 自身的消息、程序输出的行，以及一个从多个线程写入条目及其子条目的作业。</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>写入一行</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>信息(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>警告(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation>错误(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation>Qt 警告(&amp;Q)</translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation>实时视图(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation>打开日志窗口(&amp;O)</translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation>日志的实时视图</translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation>手动写入的信息</translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation>手动写入的警告</translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation>手动写入的错误</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 像素，%3</translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation>启动画面的徽标</translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation>已安装的徽标</translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation>保留的副本</translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation>启动时显示</translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation>安装徽标(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation>移除徽标(&amp;R)...</translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation>移除副本(&amp;C)...</translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation>显示启动画面(&amp;H)</translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation>安装徽标</translation>
    </message>
    <message>
        <source>Remove the installed logo "%1"?</source>
        <translation>要移除已安装的徽标“%1”吗？</translation>
    </message>
    <message>
        <source>Remove the copy "%1"?</source>
        <translation>要移除副本“%1”吗？</translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation>单击以关闭。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>没有。</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>尚无。</translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation>无：没有图片。</translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation>已安装的徽标。</translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation>副本，因为没有已安装的徽标。</translation>
    </message>
    <message>
        <source>The gallery's own picture.</source>
        <translation>展示程序自带的图片。</translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation>设置外发邮件的面板。您可以在此计算机上打开一个真实的邮件服务器，选择要发生的故障，并向其发送测试邮件。</translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation>邮件面板</translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation>面板的设置</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>显示设置(&amp;W)</translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation>Mia，您好！

海报的样张已备好，请查看。

印刷车间</translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation>样张已备好</translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation>本地邮件服务器</translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation>安全性(&amp;C)：</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>不加密</translation>
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
        <translation>故障(&amp;T)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation>拒绝收件人</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>服务器不响应</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>无服务监听</translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation>需要登录(&amp;N)</translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation>手册</translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation>打开手册(&amp;M)</translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation>打开缺失的手册(&amp;G)</translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system's viewer of PDF files.</source>
        <translation>此展示程序的手册，在系统的 PDF 查看器中打开。</translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation>测量数据表</translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation>内部数据库的文件夹(&amp;D)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation>数量(&amp;U)：</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation>创建表(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>On a server the table "%1" is dropped, made anew and left there.</source>
        <translation>在服务器上，表“%1”会被删除、重新创建并保留在那里。</translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation>内部数据库的文件夹</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>正在取消...</translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation>正在进行...</translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation>未创建表：%1</translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation>已在 %1 秒内创建。</translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation>已取消：未创建表。</translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>色块</translation>
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
        <translation>测量时间 (UTC)</translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation>没有与数据库的连接。</translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation>测量数据</translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation>ΔE 大于(&amp;O)：</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation>每页行数(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>移除行(&amp;R)</translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation>语句(&amp;N)：</translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation>单击“编号”或“ΔE”可排序：这些列有索引。</translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation>数据库拒绝：%1</translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation>已在 %1 毫秒内应答。</translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation>尚无表。</translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo "%1" cannot be written: %2.</source>
        <translation>无法写入徽标“%1”：%2。</translation>
    </message>
    <message>
        <source>No copy is kept: the folder "%1" cannot be written.</source>
        <translation>未保留副本：无法写入文件夹“%1”。</translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder "%1".</source>
        <translation>未保留副本：没有文件夹“%1”。</translation>
    </message>
    <message>
        <source>The logo "%1" cannot be removed: %2.</source>
        <translation>无法移除徽标“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation>第一张图片的全貌</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation>插件提供的配置页面及其返回的设置，以及一个既可位于页面中也可位于窗口中的对话框。</translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation>程序读取</translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation>字段包含</translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation>字段中是密码本身。</translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation>字段中是掩码，而非密码。</translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation>密码编辑框</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>值(&amp;V)：</translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation>由程序设置(&amp;B)</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
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
        <translation>TXPasswordLineEdit，启用</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation>TXPasswordLineEdit，禁用</translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation>QLineEdit，启用</translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation>QLineEdit，禁用</translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation>程序设置的密码保持加密，字段中以固定长度的掩码代替；一旦在字段中按下任意键，两者都会被舍弃。用户键入的内容则与其他字段一样留在字段中。</translation>
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
        <translation>%1，2014 年 11 月之前</translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation>%1，2014 年 11 月起</translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation>等大单元格的流式布局</translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation>按行排列的色样</translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation>色样(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>位置(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>插入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清空(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>边框(&amp;F)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>方框</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation>由样式决定</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation>每个 %1 × %2 像素</translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation>无色样</translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation>带分隔线的列表</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>色块</translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation>下方线条(&amp;B)</translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation>选择一行，切换其线条。</translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation>第 %1 行：已绘制线条</translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation>第 %1 行：已移除线条</translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation>带图片和时间的表格</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation>重新比较(&amp;C)</translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation>比较所选的行。将最后一列变窄：先隐去时间，再隐去日期的末尾。</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>色块</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>比较时间</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>较差</translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation>分隔条</translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation>待查看的色块</translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation>并排(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation>拖柄宽度(&amp;G)：</translation>
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
屏幕上：%4</translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation>色卡的色块</translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation>每个色块的左侧为 2014 年 11 月之前制作的色卡，右侧为此后制作的色卡。色差达到限值的色块带有边框。</translation>
    </message>
</context>
<context>
    <name>PatchTint</name>
    <message>
        <source>%1, %2 %</source>
        <translation>%1，%2 %</translation>
    </message>
</context>
<context>
    <name>PatchWindow</name>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation>实地色</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>色块</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>色块</translation>
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
        <translation>原色</translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation>叠印色</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>油墨</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>油墨</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>"%1" is no file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>无法读取“%1”：%2。</translation>
    </message>
    <message>
        <source>"%1" is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation>“%1”过大：%2 × %3 像素，需要超过 %4 MB 的内存。</translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation>打开图片</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation>打开图片(&amp;O)...</translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation>显示色卡(&amp;C)</translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation>显示内容：</translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation>前两张图片之间，按 CIEDE2000</translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation>将鼠标移到图片上。</translation>
    </message>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1，y %2</translation>
    </message>
</context>
<context>
    <name>PluginPanel</name>
    <message>
        <source>Changed; what is in bold is not saved.</source>
        <translation>已更改；粗体内容尚未保存。</translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation>这些设置已保存。</translation>
    </message>
    <message>
        <source>The page's defaults; nothing is saved yet.</source>
        <translation>页面的默认值；尚未保存任何内容。</translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation>来自插件的配置页面</translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder "%1"; put one there and start the gallery again.</source>
        <translation>未找到插件。插件在文件夹“%1”中查找；请将插件放入其中，然后重新启动展示程序。</translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation>找到的插件(&amp;P)：</translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation>找到的插件</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation>实时回读的设置(&amp;K)：</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>恢复(&amp;R)</translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation>纸张(&amp;R)：</translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation>涂布，115 g/m²</translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation>非涂布，120 g/m²</translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation>新闻纸，45 g/m²</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>渲染意图(&amp;I)：</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相对比色</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>绝对比色</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>可感知</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation>总墨量限制(&amp;N)：</translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation>Delta E 容差(&amp;E)：</translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation>黑场补偿(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation>显示文本(&amp;X)</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>格式(&amp;M)：</translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation>%p 代表百分比，%v 代表值，%m 代表步数。</translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation>反向(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>竖直(&amp;U)</translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation>收到的邮件</translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation>邮件(&amp;M)：</translation>
    </message>
    <message>
        <source>From</source>
        <translation>发件人</translation>
    </message>
    <message>
        <source>To</source>
        <translation>收件人</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录名</translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation>收到的原文(&amp;E)：</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>清空(&amp;R)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>ReportOptionsPanel</name>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>公式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>容差(&amp;T)：</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>色对(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>纸张(&amp;P)：</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>方向(&amp;R)：</translation>
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
        <translation>按编号</translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation>从大到小</translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation>从小到大</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>公式</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>容差</translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation>色对的顺序</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation>导出 PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>导出 PDF(&amp;E)...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>打印(&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation>打开 PDF(&amp;O)</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in "%1"</source>
        <translation>
            <numerusform>“%1”中有 %n 页</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation>已取消，未写入任何内容。</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>未写入任何内容。</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>已打印。</translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation>已取消，部分页可能已打印。</translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation>打印失败。</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation>以纸质页面呈现的颜色比较：绘制在报告画布上，表格分页排列，并输出到 PDF 文件或打印机。</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>报告的页</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation>公司(&amp;C)：</translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation>位于报告的页首</translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation>操作员(&amp;E)：</translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation>测量者</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>纸张大小(&amp;Z)：</translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation>每页显示日期(&amp;D)</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation>测量报告</translation>
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
        <translation>共 %1 页</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>页(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>缩放(&amp;Z)：</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>适合宽度</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>适合页面</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
<context>
    <name>SambaServerPanel</name>
    <message>
        <source>Local Samba server</source>
        <translation>本地 Samba 服务器</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>故障(&amp;T)：</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation>未知共享</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>服务器不响应</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>无服务监听</translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation>服务器的端口已改变：之前添加的驱动器不再指向它。</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation>扫描文件夹</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>开始扫描(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>扫描文件夹</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation>每秒条目数</translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation>设置事件何时重复以及以何种编码读取文本文件的面板。保存后，展示程序会计算接下来的事件，并重新读取文件。</translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation>选择栏的信号(&amp;G)：%1</translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation>选择栏的信号</translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Import:</source>
        <translation>导入：</translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation>在组合框中(&amp;X)</translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation>在菜单中(&amp;M)</translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation>名称可直接改写(&amp;T)</translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation>显示标签(&amp;W)：</translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation>标签文本</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation>供用户管理一组预设的选择栏，每个预设都是单独的文件：选择、新建、创建副本、重命名、导入、导出、删除。</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation>未显示服务的应答。</translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation>服务的应答过大。</translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation>%1 处无服务监听。</translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation>服务在应答之前关闭了连接。</translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation>服务已 %1 秒没有应答。</translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation>服务的应答为 HTTP 状态 %1。</translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation>无法查询服务：%1。</translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>清空(&amp;R)</translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation>共享浏览器</translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation>浏览此服务器(&amp;B)...</translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation>浏览网络(&amp;N)...</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>已选择：%1</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>未选择任何内容。</translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation>未找到任何内容。%1</translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation>原因见驱动器日志。</translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation>为要添加的驱动器选择服务器上的共享。</translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation>小型版，已排序</translation>
    </message>
    <message>
        <source>By name:</source>
        <translation>按名称：</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>导入...</translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation>经由排序代理的同一组预设。按钮的菜单取代了其他按钮。</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation>光谱</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>起始(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>终止(&amp;T)：</translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation>起始波长</translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation>终止波长</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> nm</translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation>人眼对各波长光的敏感程度：CIE 1931 标准观察者的 y 函数。光谱位于其后。</translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation>%1 到 %2 nm 的光视效率</translation>
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
        <translation>示例</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>作业(&amp;J)：</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>纸张(&amp;P)：</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>涂布</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>新闻纸</translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation>份数（最多 %1）(&amp;C)：</translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation>裁切标记(&amp;M)</translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation>由随附的样式表绘制</translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation>已完成份数</translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation>打印样张(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation>样式表</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>样式表(&amp;H)：</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>样式表</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>重新读取(&amp;R)</translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation>实际应用的文本(&amp;X)：</translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation>实际应用的文本</translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation>无样式表：控件按其样式绘制。</translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation>%1 像素的开关</translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation>%1 像素的开关，禁用</translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation>全部打开(&amp;T)</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation>单击次数：0</translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation>单击次数：%1，最近一次为 %2 像素的开关：%3</translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation>该事件永远不会发生。</translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation>根据保存的设置，该事件下次发生于：</translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation>触发事件</translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation>提供“每小时”选项(&amp;H)</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation>加载(&amp;O)</translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation>仪器校准</translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation>工作区已锁定</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>解锁(&amp;U)</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>密码不正确。</translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation>更新对话框</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>检查更新(&amp;U)</translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation>在文件夹中显示(&amp;O)</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>"Download and Install" writes the file to "%1", which a check makes where it is missing, "Download" to the folder that you choose. The file is a harmless text. "Install" opens it with the desktop's program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: "Show in Folder" shows the file.</source>
        <translation>“下载并安装”会将文件写入“%1”（不存在时由检查操作创建），“下载”则写入您选择的文件夹。该文件是无害的文本。“安装”会用桌面的文本程序打开它，并关闭展示程序的所有窗口。没有此类程序时不会有任何反应：“在文件夹中显示”会显示该文件。</translation>
    </message>
    <message>
        <source>There is no folder "%1".</source>
        <translation>没有文件夹“%1”。</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>没有程序可以显示文件夹“%1”。</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;此版本的新内容&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;数据库：一百万行，逐页浏览&lt;/li&gt;&lt;li&gt;更新：即您正在查看的内容&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;更多信息见 &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation>还有一点。 </translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation>供用户查找较新版本并下载和安装的对话框。您可以在此计算机上打开一个真实的更新服务，选择它提供的内容，并检查更新。</translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation>本地更新服务</translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation>提供的内容(&amp;E)：</translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation>较新版本</translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation>较新版本，测试版</translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation>缓慢的下载</translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation>中断的下载</translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation>没有文件的版本</translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation>较长的发行说明</translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation>当前版本</translation>
    </message>
    <message>
        <source>Older release</source>
        <translation>较旧版本</translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation>空应答</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>不是 JSON 的应答</translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation>状态 404</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>无服务监听</translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>服务收到的内容(&amp;G)：</translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation>对话框的信号(&amp;H)：</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation>更新设置</translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation>加载设置(&amp;D)</translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation>保存设置(&amp;T)</translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation>存储的设置：</translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation>存储的设置</translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation>上面的对话框每 %1 天自动检查一次。</translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation>上面的对话框不会自动检查。</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation>悬停效果(&amp;H)</translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation>突出显示鼠标下最内层的值。</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation>在列表和字典所在的行中显示其内容。</translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation>展开两层(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>折叠(&amp;C)</translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation>值的个数：%1。行的字符数：%2。%3</translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation>显示用时 %1 毫秒。</translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation>展开用时 %1 毫秒。</translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation>折叠用时 %1 毫秒。</translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation>带滑块的微调框</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source>darker</source>
        <translation>更暗</translation>
    </message>
    <message>
        <source>lighter</source>
        <translation>更亮</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation>Delta E 容差</translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation>人人可见</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>平滑</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation>总墨量</translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation>空白纸张</translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation>四色实地</translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation>总墨量，禁用</translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation>valueChanged(&amp;V)：%1</translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation>valueChanged 信号</translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation>在框中键入的值会传到滑块再传回，因此一次编辑会多次发出信号。滚轮不改变任何值：它只滚动页面。</translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation>展示程序设置(&amp;G)</translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation>JSON 文件(&amp;N)...</translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation>查询服务(&amp;K)</translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation>以一行彩色文本表示的任意深度的值，可逐层展开：此展示程序的设置、JSON 文件或更新服务的实时应答。</translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation>此展示程序的设置</translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation>尚未存储任何内容：展示程序在结束时保存其设置。</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>JSON 文件</translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation>JSON 文件 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>File "%1"</source>
        <translation>文件“%1”</translation>
    </message>
    <message>
        <source>The file "%1" is not shown.</source>
        <translation>未显示文件“%1”。</translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation>更新服务已关闭。可用其开关打开。</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>正在等待应答...</translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation>更新服务的应答</translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation>程序 Web 界面的面板，旁边是一个提供展示程序页面的真实 Web 服务器。只有此计算机可以通过 127.0.0.1 的链接访问它；允许其他计算机连接后，其他链接才有效。</translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation>Web 界面面板</translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation>Web 服务器</translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation>允许其他计算机连接(&amp;P)</translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation>未勾选时，服务器仅在 127.0.0.1 上监听，面板的其他链接都不指向它。</translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation>访问页面(&amp;T)</translation>
    </message>
    <message>
        <source>the box "Enabled" of the panel is not checked</source>
        <translation>面板的复选框“启用”未勾选</translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation>HTTPS 需要证书文件</translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>服务器收到的内容(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation>展示程序自身的访问(&amp;O)：</translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation>提供 HTTPS(&amp;H)</translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation>创建证书(&amp;C)</translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation>填写示例(&amp;X)</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>显示设置(&amp;W)</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>保存(&amp;E)</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>加载(&amp;D)</translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation>Web 界面的设置</translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation>已保存到展示程序的设置。</translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation>已从展示程序的设置加载。</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>尚未保存任何内容。</translation>
    </message>
    <message>
        <source>The example is for the user "%1" with the password "%2".</source>
        <translation>示例的用户为“%1”，密码为“%2”。</translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation>localhost 和 127.0.0.1 的证书位于 %1。浏览器会对其发出警告。</translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation>未创建证书：%1</translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation>页面生成时间</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>协议</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>everybody</source>
        <translation>所有人</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation>平均 %1，最大 %2。</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon 展示程序</translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation>提供方式</translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation>展示程序的页面</translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation>新旧色卡的色块，附 ΔE 2000</translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation>%1：状态 %2，%3 字节</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>WidgetStatePanel</name>
    <message>
        <source>Widget state</source>
        <translation>控件状态</translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program's settings. Another gives them back.</source>
        <translation>一次调用即可将窗口的位置和大小、其分隔条及视图的列保存到一个嵌套字典中，供程序的设置使用。另一次调用可将其恢复。</translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation>打开窗口(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation>保留状态(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation>打乱(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation>恢复状态(&amp;R)</translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation>保留的状态(&amp;E)：</translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation>保留的状态</translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
</context>
<context>
    <name>WorkersPanel</name>
    <message>
        <source>Several workers, one delegate</source>
        <translation>多个工作线程，一个委托</translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation>文件位置(&amp;I)：</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>浏览(&amp;W)...</translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation>读取文件(&amp;R)</translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation>取消(&amp;E)</translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation>读取文件夹中的文件</translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation>线程(&amp;H)：</translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation>工作线程的进度</translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation>工作线程报告次数</translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation>进度条绘制次数</translation>
    </message>
    <message>
        <source>Files read</source>
        <translation>已读取文件数</translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation>每秒读取量</translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>读取 %1，用时 %2 秒；其他文件的副本：%3，无法读取：%4。</translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>读取 %1 后取消，用时 %2 秒；其他文件的副本：%3，无法读取：%4。</translation>
    </message>
</context>
</TS>
