<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation>الصورة التي يعرضها البرنامج عند بدء تشغيله ويمكن للشريك أن يضع شعاره مكانها، والنافذة التي تبيّن ما هو البرنامج.</translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation>نافذة «حول»</translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation>مع إصدار Qt (&amp;V)</translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation>فتح نافذة «حول» (&amp;W)</translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation>فتح الإشعارات القانونية (&amp;N)</translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder "%1".</source>
        <translation>تُفتح الإشعارات من نسخة في المجلد «‎%1».</translation>
    </message>
    <message>
        <source>There are no notices at "%1".</source>
        <translation>لا توجد إشعارات في «‎%1».</translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation>برنامج يمكن قفل واجهة المستخدم فيه بكلمة مرور. تطلبها مربعات الحوار؛ ويحتفظ بها البرنامج ويتولى القفل، وهو هنا قفل منطقة العمل.</translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation>عناوين بخط عريض</translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation>بروفة، عنوان عريض</translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation>بروفة، خط عريض</translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation>إضافة نتيجة (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation>تحديث سُمك الخط (&amp;U)</translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation>غير ناجح</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>ناجح</translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation>متوسط ΔE %1</translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation>أكبر ΔE %1</translation>
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
        <translation>مؤشر دوّار فوق قائمة يجري ملؤها، وشريط تقدم تبلّغه خيوط كثيرة أثناء عملها.</translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation>بشرة داكنة</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>بشرة فاتحة</translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation>زرقة السماء</translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation>أوراق الشجر</translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation>زهرة زرقاء</translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation>أخضر مزرق</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation>أزرق أرجواني</translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation>أحمر معتدل</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>أرجواني</translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation>أخضر مصفر</translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation>أصفر برتقالي</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>ماجنتا</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>White 9.5</source>
        <translation>أبيض 9.5</translation>
    </message>
    <message>
        <source>Neutral 8</source>
        <translation>محايد 8</translation>
    </message>
    <message>
        <source>Neutral 6.5</source>
        <translation>محايد 6.5</translation>
    </message>
    <message>
        <source>Neutral 5</source>
        <translation>محايد 5</translation>
    </message>
    <message>
        <source>Neutral 3.5</source>
        <translation>محايد 3.5</translation>
    </message>
    <message>
        <source>Black 2</source>
        <translation>أسود 2</translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation>البشرة والطبيعة</translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation>ألوان أخرى</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>الألوان الأساسية</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>درجات الرمادي</translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation>مقارنة ألوان لوحة الاختبار ذات 24 رقعة</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>معرض TXGUICommon</translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation>صفحة {page} من {pages}</translation>
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
        <translation>متوسطات منشورة للوحات أقدم مقابل القيم المرجعية الحالية</translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation>النصف الأيسر، المجموعة A: متوسط اللوحات المصنوعة قبل نوفمبر 2014</translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation>النصف الأيمن، المجموعة B: اللوحات المصنوعة منذ نوفمبر 2014</translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation>قيم CIELAB تحت D50 لمراقب 2°، معروضة في sRGB</translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation>فروق الرقع الأربع والعشرين</translation>
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
        <translation>المتوسط</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>الأقصى</translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation>أعلى من %1</translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation>الفرق %1 لكل رقعة، التفاوت المسموح %2</translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation>‏ΔE*ab: CIE76، المسافة في CIELAB. CIE 15, Colorimetry.</translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation>‏ΔE00: CIEDE2000، جميع الأوزان 1. CIE 142:2001; ISO/CIE 11664-6.</translation>
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
        <translation>رقم</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>الرقعة</translation>
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
        <translation>A L*‎</translation>
    </message>
    <message>
        <source>A a*</source>
        <translation>A a*‎</translation>
    </message>
    <message>
        <source>A b*</source>
        <translation>A b*‎</translation>
    </message>
    <message>
        <source>B L*</source>
        <translation>B L*‎</translation>
    </message>
    <message>
        <source>B a*</source>
        <translation>B a*‎</translation>
    </message>
    <message>
        <source>B b*</source>
        <translation>B b*‎</translation>
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
        <translation>رقعة من المجموعة A</translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation>رقعة من المجموعة B</translation>
    </message>
    <message>
        <source>ΔL*</source>
        <translation>ΔL*‎</translation>
    </message>
    <message>
        <source>Δa*</source>
        <translation>Δa*‎</translation>
    </message>
    <message>
        <source>Δb*</source>
        <translation>Δb*‎</translation>
    </message>
</context>
<context>
    <name>ChartTreePanel</name>
    <message>
        <source>Tree with a grid</source>
        <translation>شجرة بخطوط شبكة</translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation>لوحة اختبار الألوان</translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation>خطوط الشبكة (&amp;G)</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>الرقعة</translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation>مدى تباعد مجموعتين من ألوان لوحة الاختبار: كشريط، وكعيّنات لونية، والطيف خلف منحنى.</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation>مصدر الضوء (&amp;I):</translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation>D50، المطبوعات (&amp;5)</translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation>D65، ضوء النهار (&amp;6)</translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation>المراقب (&amp;O):</translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation>مجال 2° (&amp;2)</translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation>مجال 10° (&amp;1)</translation>
    </message>
    <message>
        <source>White point:</source>
        <translation>النقطة البيضاء:</translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation>صيغة الفرق (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>التفاوت المسموح (&amp;T):</translation>
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
        <translation>قياس الألوان</translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation>هذا ليس إعدادًا لونيًا مسبقًا.</translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation>إصداره، %1، غير معروف.</translation>
    </message>
    <message>
        <source>"%1" is no rendering intent.</source>
        <translation>‏«%1» ليس هدف عرض.</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>إدراكي</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>قياس لوني نسبي</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>تشبع</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>قياس لوني مطلق</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>الاسم فارغ.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>عدد أحرف الاسم أكبر من %1.</translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation>يحتوي الاسم على أحرف لا يمكن عرضها.</translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation>مع تعويض النقطة السوداء</translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation>بلا تعويض النقطة السوداء</translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation>%1، %2، الورق L* %3 a* %4 b* %5، الحبر %6 % على الأكثر</translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation>الإعدادات اللونية المسبقة</translation>
    </message>
    <message>
        <source>"%1" cannot be saved.</source>
        <translation>يتعذر حفظ «%1».</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>لا يوجد إعداد مسبق كهذا.</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>ورق مطلي</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>ورق صحف</translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation>بروفة تعاقدية</translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation>لا يمكن تحميل أي إعداد مسبق.</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>تتعذر قراءة المجلد «‎%1».</translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation>لا يمكن تكرار أي شيء.</translation>
    </message>
    <message>
        <source>"%1" cannot be imported.</source>
        <translation>يتعذر استيراد «‎%1».</translation>
    </message>
    <message>
        <source>"%1" cannot be written.</source>
        <translation>تتعذر كتابة «‎%1».</translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation>هذا مجلد الإعدادات المسبقة نفسها.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>"%1" cannot be deleted.</source>
        <translation>يتعذر حذف «%1».</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>هذا رابط إلى موضع آخر.</translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation>غيّره برنامج آخر في هذه الأثناء. أعد المحاولة إذا كان يجوز فقدان تلك التغييرات.</translation>
    </message>
    <message>
        <source>Another preset is called "%1".</source>
        <translation>يوجد إعداد مسبق آخر باسم «%1».</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>يتعذر إنشاء المجلد «‎%1».</translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>هدف العرض (&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>تعويض النقطة السوداء (&amp;B)</translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation>حد الحبر (&amp;K):</translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation>بياض الورق:</translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation>الورق كما تعرضه الشاشة</translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation>إضاءة الورق</translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation>من الأخضر إلى الأحمر للورق</translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation>من الأزرق إلى الأصفر للورق</translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation>إعداد مسبق جديد</translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation>الإعدادات اللونية المسبقة</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>الإعداد المسبق:</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>لا يوجد إعداد مسبق</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>استيراد...</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation>إلغاء التحرير (&amp;N)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>حذف الإعداد المسبق</translation>
    </message>
    <message>
        <source>Delete the preset "%1" for good?</source>
        <translation>هل تريد حذف الإعداد المسبق «%1» نهائيًا؟</translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation>غيّر الاسم في الحقل والإعدادات، ثم احفظ.</translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation>لا يوجد إعداد مسبق. أنشئ إعدادًا جديدًا أو استورد واحدًا.</translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation>يمكن تغيير الإعدادات عند تحرير الإعداد المسبق.</translation>
    </message>
    <message>
        <source>Files in "%1" that are no presets, and are left as they are: %2</source>
        <translation>ملفات في «‎%1» ليست إعدادات مسبقة، وتُترك كما هي: ‎%2</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>حفظ الإعداد المسبق</translation>
    </message>
    <message>
        <source>The preset "%1" has been edited. Save it?</source>
        <translation>حُرّر الإعداد المسبق «%1». هل تريد حفظه؟</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>استيراد إعداد مسبق</translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation>الإعدادات اللونية المسبقة (*.json)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>تصدير الإعداد المسبق</translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation>عدد البايتات %1 حسب الترويسة، و%2 في الملف.</translation>
    </message>
    <message>
        <source>The signature is "%1" instead of "acsp".</source>
        <translation>التوقيع هو «%1» بدلًا من «acsp».</translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation>الإصدار %1 غير مدعوم.</translation>
    </message>
    <message>
        <source>The device class "%1" is unknown.</source>
        <translation>فئة الجهاز «%1» غير معروفة.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>يتعذر فتح الملف.</translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation>ينتهي الملف داخل الترويسة، بعد %1 بايت.</translation>
    </message>
    <message>
        <source>"%1" cannot be used as a colour profile.</source>
        <translation>لا يمكن استخدام «%1» كملف تعريف ألوان.</translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation>القوائم المنسدلة</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُمكّنة</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّلة</translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation>ظروف القياس (&amp;M):</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>الورق (&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>المجلد (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>إعادة تسمية (&amp;R)</translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation>ضوء مصباح تنغستن، الأشعة فوق البنفسجية غير محددة</translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation>ضوء النهار D50، الأشعة فوق البنفسجية كما في D50</translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation>بلا أشعة فوق بنفسجية</translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation>بلا أشعة فوق بنفسجية، مع مرشحات استقطاب</translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation>فُقد التركيز: %1</translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation>ظروف القياس</translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation>ظروف القياس، معطّلة</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>الورق</translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation>الورق، معطّل</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation>المجلد، معطّل</translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation>ما يحوي عناصر واجهة أخرى: خلايا متساوية متتابعة، ومربع، ومقسّمات بمقبض، ومربعات مجموعات قابلة للطي أو بعنوان عريض؛ وتسميات مدوّرة.</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation>أعداد بجانبها منزلق، ومفاتيح تبديل، ومربعات عددية تُقرأ كقيمة عادية عند تعطيلها؛ وحالة نافذة كاملة في استدعاء واحد.</translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation>حوار بيانات الاعتماد</translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation>طلب بيانات الاعتماد (&amp;C)...</translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation>عرض خيار التذكّر (&amp;E)</translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether "Remember" is checked.</source>
        <translation>مع هذا الخيار يستدعي الحوار البرنامج عند كل «حسنًا» إذا كان الحقلان مملوءين؛ ويسأل البرنامج بنفسه هل خانة «تذكّر» محددة.</translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>لم تُطلب بعد.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>أُلغي.</translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation>المستخدم: %1.</translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation>عدد أحرف كلمة المرور: %1.</translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation>تم الاستدعاء الراجع.</translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation>لم يتم الاستدعاء الراجع.</translation>
    </message>
    <message>
        <source>"Remember" is checked.</source>
        <translation>خانة «تذكّر» محددة.</translation>
    </message>
    <message>
        <source>"Remember" is not checked.</source>
        <translation>خانة «تذكّر» غير محددة.</translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program's data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation>نموذج تحديد مكان بيانات البرنامج: قاعدة بياناته الداخلية أو خادم. شغّل خادم MariaDB حقيقيًا على هذا الكمبيوتر، واختر الخلل المطلوب، وتصفّح مليون قياس في أي من قاعدتي البيانات.</translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation>نموذج قاعدة البيانات</translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation>خادم MariaDB محلي</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>الخلل (&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>كلمة مرور خاطئة</translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation>لا صلاحية على قاعدة البيانات</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>خادم صامت</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>لا مجيب</translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation>الإعدادات والحوار</translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation>عرض الإعدادات (&amp;H)</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>حفظ (&amp;E)</translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation>سؤال (&amp;K)...</translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation>إعدادات قاعدة البيانات</translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation>مكان حفظ القياسات</translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation>كما هي في النموذج، سواء أكانت تعمل أم لا.</translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation>تم الحفظ: يمكن فتح اتصال.</translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation>لا شيء للحفظ: لا يمكن فتح اتصال.</translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation>تم التأكيد في الحوار: يمكن فتح اتصال.</translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation>أُلغي، أو لا يمكن فتح اتصال.</translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation>فروق الأزواج</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>الصيغة (&amp;F):</translation>
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
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>الأزواج (&amp;I):</translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation>الرقع نفسها</translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation>رقع مختلفة</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>الأزواج</translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation>الحد:</translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation>عدد الأزواج دون الحد %3 هو %1 من %2. المتوسط %4، ودونه %5 % من الأزواج؛ والفرق الأكبر %6.</translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation>الفرق اللوني حسب CIEDE2000. حتى %1: متقارب.</translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation>ألوان الفرق</translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation>مربعات عددية معطّلة</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُمكّن</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1، مُمكّن</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1، معطّل</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>تبديل (&amp;W)</translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation>الإشارات</translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation>إشارات الصفحة (&amp;F): %1</translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation>إشارات الصفحة</translation>
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
        <translation>حقل يقبل ملفات تُفلت فيه من هنا أو من أي برنامج، ومجلدات تُرتَّب بالسحب، في عرضين يبقيان متزامنين.</translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation>نافذة المدير</translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation>المشاركة (&amp;H):</translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation>إضافة محرك أقراص (&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation>إزالة المحركات المضافة (&amp;M)</translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation>عرض المجلد (&amp;O)</translation>
    </message>
    <message>
        <source>Check "Enabled", and all active drives in the list are connected, your own too. A connected drive is a link in "%1". The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation>حدّد «مُمكّن» لتوصيل جميع محركات الأقراص النشطة في القائمة، ومنها محركات أقراصك. محرك الأقراص المتصل رابط في «‎%1». لا يعرف المحرِّر أي منفذ: فمحرك الأقراص الذي تُدخله أو تحرّره يقود إلى المنفذ القياسي 445، لا إلى الخادم أعلاه. تُزال محركات الأقراص المضافة عند إنهاء المعرض؛ أما الذي حرّرته فهو لك ويبقى.</translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation>تمت الإضافة: ‎%1‎.</translation>
    </message>
    <message>
        <source>Added: %1. Check "Enabled" to have it connected.</source>
        <translation>تمت الإضافة: ‎%1‎. حدّد «مُمكّن» لتوصيله.</translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "-".</source>
        <translation>محرك الأقراص ‎%1‎ أصبح لك الآن، ويقود إلى المنفذ %2: لا يعرف المحرِّر أي منفذ. أزِله بالزر «-».</translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation>جميع أحرف محركات الأقراص مستخدمة.</translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder "%1".</source>
        <translation>لم يوصَّل أي محرك أقراص بعد: لا يوجد مجلد «‎%1».</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>لا يوجد برنامج يعرض المجلد «‎%1».</translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation>سجل محركات الأقراص (&amp;G):</translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation>إشارات المدير (&amp;I):</translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation>محركات أقراص على خوادم ملفات يبقيها البرنامج متصلة. شغّل خادم Samba حقيقيًا على هذا الكمبيوتر، واختر الخلل المطلوب، وأضف محركات أقراصه إلى القائمة، وشاهد حالتها.</translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation>نُقر على «حسنًا»، ويبقى الحوار في الصفحة.</translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation>أغلق «حسنًا» النافذة؛ وأُخذ لونها.</translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation>أغلق «ألغِ» النافذة؛ ويبقى اللون كما كان.</translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation>حوار في مكانين</translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation>بصفته جزءًا من الصفحة لا تُنهي الأزرار الحوار. أما كنافذة فتُنهيه، ويسلّم لونه.</translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation>فتح كنافذة (&amp;W)</translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation>مسح (&amp;C)</translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec "%1".</source>
        <translation>لا يوجد مُرمِّز باسم «%1».</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>تتعذر قراءته: %1.</translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation>ملف نصي</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>ملفات نصية (*.txt);;جميع الملفات (*)</translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation>الترميز الافتراضي</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>حفظ (&amp;E)</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>تحميل (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation>الملف النصي (&amp;T):</translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation>مثال بترميز UTF-8</translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation>مثال بترميز ISO-8859-1</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>اختيار ملف (&amp;F)...</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>نص الملف</translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation>لا يُعرض الملف. %1</translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation>عدد البايتات المقروءة بترميز %1: %2.</translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation>مواضع لا يستطيع هذا الترميز قراءتها: %1.</translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation>لا تُعرض بقية الملف.</translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Short:</source>
        <translation>موجز:</translation>
    </message>
    <message>
        <source>With details:</source>
        <translation>مع التفاصيل:</translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation>سطر لكل خطأ متداخل</translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation>الأخطاء المتداخلة مطوية</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>معلومات (&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation>سؤال (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>تحذير (&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation>حرج (&amp;C)</translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation>معلومات (&amp;F)</translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation>سؤال (&amp;U)</translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation>تحذير (&amp;N)</translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation>حرج (&amp;R)</translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation>%1، موجز</translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation>%1، مع التفاصيل</translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation>قراءة ملف كملف تعريف ألوان</translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation>تركيب خطأ</translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation>المثال (&amp;X):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>استعراض (&amp;B)...</translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation>قراءة ملف آخر كملف تعريف ألوان.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>العنوان (&amp;T):</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation>بلا عنوان يحل مجال الخطأ محله</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>الوصف (&amp;D):</translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation>مجال الخطأ (&amp;O):</translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation>الأخطاء المتداخلة (&amp;E):</translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation>خطأ في كل سطر؛ ومسافتان في أوله تضعانه تحت السطر الذي فوقه</translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation>النص الكامل (&amp;P):</translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation>الخطأ الذي ليس فيه ما يقال لا يفتح أي نافذة.</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>Colour Profile</source>
        <translation>ملف تعريف الألوان</translation>
    </message>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>تتعذر قراءة كلمة مرور جهاز القياس.</translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation>ملف مقروء كملف تعريف ألوان</translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation>كلمة مرور لم تُشفّر قط</translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation>أسباب بلا وصف</translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation>لا شيء للإبلاغ عنه</translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation>كيف يبلغ الإخفاق المستخدم: خطأ مع الأخطاء التي أدت إليه، ونوافذ الرسائل التي تعرضه، والدليل.</translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation>حقول البرنامج الإضافية</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation>إضافة حقل (&amp;I)</translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation>إزالة الحقل (&amp;M)</translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation>قسم الطباعة</translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation>الفروق اللونية</translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation>يمكن أيضًا إتاحة كتابة حد شريط الفروق.</translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation>نموذج الملاحظات</translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation>فتح كحوار (&amp;D)</translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation>تُرسل الملاحظة إلى المنفذ 5050 على هذا الكمبيوتر ولا تُرسل إلى أي مكان آخر؛ وتستلمها الخدمة هناك ما دامت تعمل. ينتظر النموذج الرد مهما طال، ولا يمكن الضغط على شيء في هذه الأثناء.
ولا يُبلغ بالنجاح إلا إذا كان جزء من الرد لا يزال يصل أثناء القراءة. أما الرد الذي وصل كاملًا، كما يحدث من هذا الكمبيوتر، فلا ينظر إليه: عندئذ يقول النموذج إن الخدمة ربما تكون غير متاحة، حتى لو قُبلت الملاحظة. وما وصل مدوّن في الجلسة.</translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation>النموذج الذي يكتب به المستخدم إلى صانعي البرنامج. شغّل خدمة ملاحظات حقيقية على هذا الكمبيوتر، واختر ردها، وأرسل ملاحظة.</translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation>خدمة ملاحظات محلية</translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation>الرد (&amp;W):</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>قبول</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>رفض</translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation>قبول بعد %1 ث</translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation>رد ينقطع</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>رد ليس JSON</translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation>الحالة 500</translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>ما تلقته الخدمة (&amp;G):</translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation>إشارات النموذج وحواره (&amp;H):</translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation>يجري البحث عن الملفات</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>تجري قراءة ‎%1</translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation>ملفات المعرض (&amp;G):</translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation>ملفات المعرض</translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation>وضع في الحقل (&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation>الملف المُفلَت (&amp;D):</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>أفلت الملفات هنا</translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation>لم يُفلت شيء بعد</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>أُفلت: %1</translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation>أُفلت: %1، ومنها ما ليس على هذا الكمبيوتر: %2</translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation>المجلدات</translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation>بترتيب مخصّص (&amp;O):</translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation>بالترتيب الأبجدي (&amp;E):</translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation>المجلدات بترتيب مخصّص</translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation>المجلدات بالترتيب الأبجدي</translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation>مواضع الإفلات (&amp;M):</translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation>على المجلدات وبينها</translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation>على المجلدات فقط</translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation>بين المجلدات فقط</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>لا مواضع</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>مجلد جديد (&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>إزالة (&amp;R)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>نقل لأعلى (&amp;U)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>نقل لأسفل (&amp;W)</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>نقل إلى الداخل (&amp;I)</translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation>نقل إلى الخارج (&amp;T)</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>مجلد جديد</translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation>مجلد جديد %1</translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation>أُزيل «%1»</translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation>نُقل «%1»</translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation>لا يمكن نقل «%1» إلى هناك</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>الطباعة</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>أنواع الورق</translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation>غير مطلي</translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation>مطلي، لامع</translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation>مطلي، مطفأ</translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation>البروفات</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>الشاشات</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>الاستوديو</translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation>الحواسيب المحمولة</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>لوحات الاختبار</translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation>24 لونًا</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>درجات الرمادي</translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program's folder; several paths are separated by "%1".</source>
        <translation>تبدأ المسارات النسبية من مجلد البرنامج؛ وتُفصل المسارات المتعددة بـ «%1».</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation>المجلد فارغ.</translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation>رابط معطوب: ‎%1</translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation>اسم طويل جدًا: ‎%1</translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation>لا صلاحية للقراءة: ‎%1</translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation>لا صلاحية لسرد محتويات المجلد.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>المجلد غير موجود.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>هذا ملف وليس مجلدًا.</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>الملفات: %1</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>الحجم الكلي: %1</translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation>آخر تغيير: %1</translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation>لا تُسرد النتائج الأخرى.</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>المجلد ‎%1</translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation>انتهى الفحص بعد %1 ث</translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation>أُلغي الفحص بعد %1 ث</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>المجلدات: %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>التحذيرات: %1</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>الأخطاء: %1</translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation>فحص مجلد مع مؤشر دوّار</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>المجلد (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>استعراض (&amp;B)...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>بدء الفحص (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>فحص مجلد</translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation>حجم المؤشر الدوّار (&amp;Z):</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 بكسل</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation>آخر تغيير</translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation>أكبر المجلدات</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation>المجلدات: %1، الملفات: %2، %3 حتى الآن</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation>المجلدات: %1، الملفات: %2، %3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation>المجلدات: %1، الملفات: %2، %3؛ أُلغي</translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation>مربع مجموعة قابل للطي</translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation>التحويل (&amp;O)</translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation>هدف العرض:</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>إدراكي</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>قياس لوني نسبي</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>تشبع</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>قياس لوني مطلق</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>تعويض النقطة السوداء (&amp;B)</translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation>محاكاة الورق</translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation>لا تُحتسب النقطة السوداء إلا مع القياس اللوني النسبي.</translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation>إبقاء الملاحظة مخفية (&amp;K)</translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation>النقطة السوداء معوَّضة</translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation>محاكاة الورق مفعّلة</translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation>الخطوط</translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation>لا توجد خطوط في ‎%1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation>الخط %1 من الملف ‎%2</translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation>هذا الملف ليس خطًا.</translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation>نموذج من الخط %1</translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation>نموذج FTP</translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation>عرض الحالة (&amp;U)</translation>
    </message>
    <message>
        <source>Show &amp;box "Active"</source>
        <translation>عرض خانة «نشط» (&amp;B)</translation>
    </message>
    <message>
        <source>Show box "&amp;Erase"</source>
        <translation>عرض خانة «حذف» (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation>للاستيراد (&amp;I)</translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation>نموذج خادم FTP أو SFTP للاستيراد منه أو التصدير إليه. شغّل خادمًا حقيقيًا على هذا الكمبيوتر، واختر الخلل المطلوب، واختبر الاتصال.</translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation>خادم محلي</translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation>البروتوكول (&amp;O):</translation>
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
        <translation>الخلل (&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>كلمة مرور خاطئة</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>خادم صامت</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>لا مجيب</translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>ما تلقاه الخادم (&amp;G):</translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation>إشارات النموذج (&amp;H):</translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation>الإعدادات ومربعات الحوار</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>عرض الإعدادات (&amp;W)</translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation>حوار الاستيراد (&amp;M)...</translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation>حوار التصدير (&amp;X)...</translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation>مصدر المهام</translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation>وجهة المهام</translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>معرض TXGUICommon</translation>
    </message>
    <message>
        <source>with Qt %1</source>
        <translation>مع Qt %1</translation>
    </message>
</context>
<context>
    <name>GalleryCommandLine</name>
    <message>
        <source>Shows what the TXGUICommon library has to offer.</source>
        <translation>يعرض ما تقدمه مكتبة TXGUICommon.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>عرض هذه المساعدة والخروج.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation>الفتح على هذه الصفحة: %1.</translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation>ملف|مجلد</translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation>حفظ صورة للصفحة المسماة كملف PNG هذا، أو لكل صفحة في هذا المجلد، وطباعة المسارات والخروج.</translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation>نمط عناصر الواجهة: %1.</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>الألوان.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>الرمز</translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation>لغة النصوص، مثل en.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>الخيار ‎--%1 يحتاج إلى قيمة.</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>وسيطة غير متوقعة «%1».</translation>
    </message>
    <message>
        <source>There is no page "%1". The pages are: %2.</source>
        <translation>لا توجد صفحة باسم «%1». الصفحات هي: %2.</translation>
    </message>
    <message>
        <source>There is no style "%1". The styles are: %2.</source>
        <translation>لا يوجد نمط باسم «%1». الأنماط هي: %2.</translation>
    </message>
    <message>
        <source>There is no language "%1". The languages are: %2.</source>
        <translation>لا توجد لغة باسم «%1». اللغات هي: %2.</translation>
    </message>
    <message>
        <source>There is no palette "%1". The palettes are: light, dark, contrast.</source>
        <translation>لا يوجد لوح ألوان باسم «%1». الألواح هي: ‎light, dark, contrast.</translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>يتعذر إنشاء المجلد «‎%1».</translation>
    </message>
    <message>
        <source>The page "%1" was not ready after %2 seconds.</source>
        <translation>لم تكن الصفحة «%1» جاهزة بعد %2 ث.</translation>
    </message>
    <message>
        <source>The picture "%1" cannot be written: %2.</source>
        <translation>تتعذر كتابة الصورة «‎%1»: %2.</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>معرض TXGUICommon</translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation>لوح الألوان (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>النمط (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>اللغة (&amp;L)</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>حول...</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation>حول هذا البرنامج (%1)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>لوح الألوان</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>تباين عالٍ</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>الأخطاء</translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation>الانشغال والتقدم</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>الوصول</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>عناصر التحكم</translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation>القوائم والمفوّضات</translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation>الحاويات والتسميات</translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation>السحب والإفلات</translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation>شريط الاختيار</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>البريد</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>‏FTP</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>قاعدة البيانات</translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation>واجهة الويب</translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation>المُشغِّل والترميز</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>محركات الأقراص</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>التحديث</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>قيمة Variant</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation>الفرق اللوني</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>الملاحظات</translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation>اللغة والنمط</translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation>شاشة البداية و«حول»</translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation>يجري تحميل الخطوط...</translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation>يجري تحميل الصفحات...</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation>%1 - معرض TXGUICommon</translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation>ملاءمة (&amp;F)</translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation>الصورة كاملة في كل حيّز، حتى عند تغيّر النافذة</translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation>ملاءمة الحصة (&amp;H)</translation>
    </message>
    <message>
        <source>Each zone's share of the width: a half with two pictures, also when the window changes</source>
        <translation>حصة كل حيّز من العرض: النصف عند وجود صورتين، حتى عند تغيّر النافذة</translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation>100 % (&amp;0)</translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation>بكسل الصورة ببكسل واحد من الشاشة</translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation>المقياس (&amp;E):</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>التراكب (&amp;V)</translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation>أسماء الصور، وحدود الرقع وأرقامها</translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation>العلامة (&amp;M)</translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation>شعيرتان متصالبتان في الموضع نفسه في جميع الصور</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation>صور جنبًا إلى جنب بمقياس واحد وموضع واحد: لوحة اختبار الألوان، واللوحة نفسها في طباعة محاكاة، والفرق بينهما. اسحبها، وأدر العجلة للنظر عن قرب.</translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation>صور جنبًا إلى جنب</translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation>لحظة من فضلك...</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>اللوحة</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>المطبوع</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>الفرق</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation>المطبوع محسوب: ورق ليس أبيض، وحبر ليس أسود، ونقاط تكبر بنسبة %1 بالمئة، وأثر من شبكة تنقيطها. وهو يُظهر ما تفعله هذه العوامل الأربعة، وليس بروفة لما تطبعه آلة الطباعة.</translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation>أول %1 من الملفات البالغ عددها %2.</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation>تختلف الصور في الحجم: %1 بكسل. وتُعرض كلها وفقًا للأولى.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation>يبقى ما كان معروضًا من قبل.</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>تتعذر قراءته: %1.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation>لا يحتوي على كائن JSON.</translation>
    </message>
    <message>
        <source>"%1" is not known.</source>
        <translation>‏«%1» غير معروف.</translation>
    </message>
    <message>
        <source>"%1" is no text.</source>
        <translation>‏«%1» ليس نصًا.</translation>
    </message>
    <message>
        <source>"%1" is neither true nor false.</source>
        <translation>‏«%1» ليس true ولا false.</translation>
    </message>
    <message>
        <source>"%1" is no number from %2 to %3.</source>
        <translation>‏«%1» ليس عددًا من %2 إلى %3.</translation>
    </message>
    <message>
        <source>"%1" is no whole number.</source>
        <translation>‏«%1» ليس عددًا صحيحًا.</translation>
    </message>
    <message>
        <source>"%1" is no object.</source>
        <translation>‏«%1» ليس كائنًا.</translation>
    </message>
    <message>
        <source>"%1" is missing.</source>
        <translation>‏«%1» مفقود.</translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation>النص فارغ.</translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation>النص ليس JSON (السطر %1: %2).</translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation>النص كبير جدًا: أكثر من %1.</translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation>يحتوي النص على قيم كثيرة جدًا: أكثر من %1.</translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation>على الشاشة ‎%1</translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation>خارج نطاق الشاشة؛ يُعرض بالقيمة ‎%1</translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation>مزج لون</translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation>الإضاءة L*‎ (&amp;G):</translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation>أخضر-أحمر a*‎ (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation>أزرق-أصفر b*‎ (&amp;B):</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>الإضاءة</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>من الأخضر إلى الأحمر</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>من الأزرق إلى الأصفر</translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation>تخطيط مربع وتسميات مدوّرة</translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation>‏b*‎: من الأزرق إلى الأصفر</translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation>‏a*‎: من الأخضر إلى الأحمر</translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation>الإضاءة (&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation>المحور الرأسي (&amp;V):</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>بلا تدوير</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>مع عقارب الساعة</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>عكس عقارب الساعة</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>الهوامش (&amp;M):</translation>
    </message>
    <message>
        <source> px</source>
        <translation> بكسل</translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation>إرجاع (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>إخراج (&amp;T)</translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation>ألوان الإضاءة %1، مع رقع لوحة الاختبار</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation>كيف يأخذ البرنامج لغته وورقة أنماطه وخطوطه من الملفات التي بجانبه.</translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation>نصوص المعرض (&amp;T):</translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation>نصوص المعرض</translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation>استيراد ترجمة (&amp;I)...</translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation>لا توجد ترجمات في ‎%1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation>الملفات في ‎%2‏: %1</translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation>النتيجة 0: نُسخ الملف.</translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation>النتيجة 1: لم يُنسخ الملف.</translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation>النتيجة 2: أُلغي.</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation>ما ترسمه المكتبة في القوائم والجداول والأشجار، وقوائمها المنسدلة.</translation>
    </message>
</context>
<context>
    <name>LocalMariaDbServer</name>
    <message>
        <source>the user has no name</source>
        <translation>ليس للمستخدم اسم</translation>
    </message>
    <message>
        <source>the database "%1" is the closed one</source>
        <translation>الوصول إلى قاعدة البيانات «%1» ممنوع</translation>
    </message>
</context>
<context>
    <name>LocalServer</name>
    <message>
        <source>no folder for the server: %1</source>
        <translation>لا يوجد مجلد للخادم: ‎%1</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>تعذّر بدء %1:‎ %2</translation>
    </message>
    <message>
        <source>%1 is not ready in time</source>
        <translation>لم يجهز %1 في الوقت المحدد</translation>
    </message>
    <message>
        <source>%1 ended before it was ready</source>
        <translation>انتهى %1 قبل أن يجهز</translation>
    </message>
    <message>
        <source>%1 told no port but "%2"</source>
        <translation>لم يذكر %1 منفذًا بل «%2»</translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>الخادم (&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation>ملء النموذج (&amp;F)</translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation>يعمل على %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>لم يبدأ الخادم: %1</translation>
    </message>
    <message>
        <source>"./dev setup" installs what is needed.</source>
        <translation>يثبّت «‎./dev setup» ما يلزم.</translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation>توقف الخادم من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation>توقف الخادم من تلقاء نفسه: %1</translation>
    </message>
</context>
<context>
    <name>LocalUpdateService</name>
    <message>
        <source>no folder for the replies: %1</source>
        <translation>لا يوجد مجلد للردود: ‎%1</translation>
    </message>
</context>
<context>
    <name>LocalWebServer</name>
    <message>
        <source>there is no file %1</source>
        <translation>لا يوجد ملف ‎%1</translation>
    </message>
    <message>
        <source>%1 is no file with a certificate</source>
        <translation>الملف ‎%1 لا يحوي شهادة</translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation>قفل واجهة المستخدم</translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation>تُخزَّن كلمة المرور على هيئة</translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation>ملخّص MD5 (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation>نص صريح (&amp;P)</translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation>المخزّن حاليًا</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>محو (&amp;G)</translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation>قفل (&amp;K)...</translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation>كلمة المرور الأولى (&amp;F)...</translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation>تغيير كلمة المرور (&amp;H)...</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation>تم القفل بكلمة المرور المخزّنة.</translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation>تم القفل بكلمة مرور جديدة، وهي مخزّنة الآن.</translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation>أُلغي: لم يُقفل شيء، ويبقى المخزّن كما هو.</translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation>أُلغي بعد تغيير كلمة المرور: لم يُقفل شيء، ولا يُحتفظ بكلمة المرور الجديدة.</translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation>كلمة المرور الجديدة مخزّنة.</translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation>أُلغي: يبقى المخزّن كما هو.</translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation>مُحيت كلمة المرور.</translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation>حلّ الملخّص محل كلمة المرور المخزّنة.</translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation>لا يمكن استرجاع كلمة المرور من الملخّص: لقد مُحيت.</translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation>أُلغي القفل بكلمة المرور الصحيحة.</translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation>منطقة العمل مفتوحة.</translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation>لم تُعيَّن كلمة مرور: يطلب القفل كلمة مرور أولى.</translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation>منطقة العمل</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt's own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation>سجل هذا البرنامج نفسه، مباشرةً: رسائل Qt، والأسطر التي يطبعها البرنامج، ومهمة تكتب إدخالات ذات إدخالات فرعية من عدة خيوط.</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>كتابة سطر</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>معلومات (&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>تحذير (&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation>خطأ (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation>تحذير Qt (&amp;Q)</translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation>العرض المباشر (&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation>فتح نافذة السجل (&amp;O)</translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation>العرض المباشر للسجل</translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation>معلومة مكتوبة يدويًا</translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation>تحذير مكتوب يدويًا</translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation>خطأ مكتوب يدويًا</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 بكسل، %3</translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation>شعار شاشة البداية</translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation>الشعار المثبّت</translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation>النسخة المحفوظة</translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation>المعروض عند البدء</translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation>إدراج شعار (&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation>إزالة الشعار (&amp;R)...</translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation>إزالة النسخة (&amp;C)...</translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation>عرض شاشة البداية (&amp;H)</translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation>إدراج شعار</translation>
    </message>
    <message>
        <source>Remove the installed logo "%1"?</source>
        <translation>هل تريد إزالة الشعار المثبّت «‎%1»؟</translation>
    </message>
    <message>
        <source>Remove the copy "%1"?</source>
        <translation>هل تريد إزالة النسخة «‎%1»؟</translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation>انقر للإغلاق.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>لا يوجد شعار.</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>لا توجد نسخة بعد.</translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation>لا شيء: لا توجد صورة.</translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation>الشعار المثبّت.</translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation>النسخة، لعدم وجود شعار مثبّت.</translation>
    </message>
    <message>
        <source>The gallery's own picture.</source>
        <translation>صورة المعرض نفسه.</translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation>نموذج إعدادات البريد الصادر. شغّل خادم بريد حقيقيًا على هذا الكمبيوتر، واختر الخلل المطلوب، وأرسل إليه رسالة اختبار.</translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation>نموذج البريد</translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation>إعدادات النموذج</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>عرض الإعدادات (&amp;W)</translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation>عزيزتي ميا،

بروفة الملصق جاهزة لتطّلعي عليها.

قسم الطباعة</translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation>البروفة جاهزة</translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation>خادم بريد محلي</translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation>الأمان (&amp;C):</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>غير مشفّر</translation>
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
        <translation>الخلل (&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>كلمة مرور خاطئة</translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation>المستلم مرفوض</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>خادم صامت</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>لا مجيب</translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation>تسجيل الدخول مطلوب (&amp;N)</translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation>الدليل</translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation>فتح الدليل (&amp;M)</translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation>فتح دليل غير موجود (&amp;G)</translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system's viewer of PDF files.</source>
        <translation>دليل هذا المعرض، في عارض ملفات PDF الخاص بالنظام.</translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation>جدول القياسات</translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation>مجلد قاعدة البيانات الداخلية (&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>استعراض (&amp;B)...</translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation>الكمية (&amp;U):</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 صف</translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation>إنشاء الجدول (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>On a server the table "%1" is dropped, made anew and left there.</source>
        <translation>على الخادم يُحذف الجدول «%1» ويُنشأ من جديد ويُترك هناك.</translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation>مجلد قاعدة البيانات الداخلية</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>يجري الإلغاء...</translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation>العمل جارٍ...</translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation>لم يُنشأ أي جدول: %1</translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation>أُنشئ خلال %1 ث.</translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation>أُلغي: لم يُنشأ أي جدول.</translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>الرقعة</translation>
    </message>
    <message>
        <source>L*</source>
        <translation>L*‎</translation>
    </message>
    <message>
        <source>a*</source>
        <translation>a*‎</translation>
    </message>
    <message>
        <source>b*</source>
        <translation>b*‎</translation>
    </message>
    <message>
        <source>ΔE</source>
        <translation>ΔE</translation>
    </message>
    <message>
        <source>Measured (UTC)</source>
        <translation>وقت القياس (UTC)</translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation>لا يوجد اتصال بقاعدة البيانات.</translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation>القياسات</translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation>قيمة ΔE أعلى من (&amp;O):</translation>
    </message>
    <message>
        <source>all</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation>الصفوف في الصفحة (&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>إزالة الصفوف (&amp;R)</translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation>العبارة (&amp;N):</translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation>النقر على «الرقم» أو «ΔE» يرتّب: لهذين العمودين فهرس.</translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation>ترفض قاعدة البيانات: ‎%1</translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation>جاء الرد خلال %1 ملي ثانية.</translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation>لا يوجد جدول بعد.</translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo "%1" cannot be written: %2.</source>
        <translation>تتعذر كتابة الشعار «‎%1»: %2.</translation>
    </message>
    <message>
        <source>No copy is kept: the folder "%1" cannot be written.</source>
        <translation>لا تُحفظ أي نسخة: تتعذر الكتابة في المجلد «‎%1».</translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder "%1".</source>
        <translation>لا تُحفظ أي نسخة: لا يوجد مجلد «‎%1».</translation>
    </message>
    <message>
        <source>The logo "%1" cannot be removed: %2.</source>
        <translation>تتعذر إزالة الشعار «‎%1»: %2.</translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation>نظرة عامة</translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation>الصورة الأولى كاملة</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation>صفحات إعداد تأتي بها الملحقات، مع الإعدادات التي تعيدها، وحوار يوضع في صفحة كما في نافذة.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation>يقرأ البرنامج</translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation>يحوي الحقل</translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation>في الحقل كلمة المرور نفسها.</translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation>في الحقل قناع، لا كلمة المرور.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation>حقل إدخال كلمة المرور</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>القيمة (&amp;V):</translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation>التعيين من البرنامج (&amp;B)</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُمكّن</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>T&amp;XPasswordLineEdit</source>
        <translation>T&amp;XPasswordLineEdit</translation>
    </message>
    <message>
        <source>&amp;QLineEdit</source>
        <translation>&amp;QLineEdit</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, enabled</source>
        <translation>TXPasswordLineEdit، مُمكّن</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation>TXPasswordLineEdit، معطّل</translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation>QLineEdit، مُمكّن</translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation>QLineEdit، معطّل</translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation>ما عيّنه البرنامج يبقى مشفّرًا، ويحل محله قناع ثابت الطول، إلى أن تُسقط أول ضغطة مفتاح في الحقل كليهما. أما ما يكتبه المستخدم فيظهر في الحقل كما في أي حقل آخر.</translation>
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
        <translation>%1، قبل نوفمبر 2014</translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation>%1، منذ نوفمبر 2014</translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation>خلايا متساوية متتابعة</translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation>عيّنات لونية في صفوف</translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation>العيّنات اللونية (&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>الموضع (&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>إدراج (&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>إزالة (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>مسح (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>الإطار (&amp;F):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>صندوق</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>لوح</translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation>حسب النمط</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>الأسماء (&amp;N)</translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation>%1 × %2 بكسل لكل منها</translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation>لا توجد عيّنة لونية</translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation>قائمة بخطوط فاصلة</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>الرقع</translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation>خط أسفله (&amp;B)</translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation>اختر صفًا، وبدّل خطه.</translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation>الصف %1: رُسم الخط</translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation>الصف %1: أُزيل الخط</translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation>جدول بصور وأوقات</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>المقارنات</translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation>المقارنة مجددًا (&amp;C)</translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation>مقارنة الصفوف المختارة. ضيّق العمود الأخير: يختفي الوقت أولًا، ثم نهاية التاريخ.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>الرقعة</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>وقت المقارنة</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>جيد</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>مقبول</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>ضعيف</translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation>المقسّمات</translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation>رقع للمعاينة</translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation>متجاورة (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation>عرض المقبض (&amp;G):</translation>
    </message>
    <message>
        <source> px</source>
        <translation> بكسل</translation>
    </message>
    <message>
        <source>L* %1
a* %2
b* %3
On the screen: %4</source>
        <translation>L* %1
a* %2
b* %3
على الشاشة: ‎%4</translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation>رقع لوحة الاختبار</translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation>على يمين كل رقعة اللوحات المصنوعة قبل نوفمبر 2014، وعلى يسارها المصنوعة منذ ذلك الحين. والرقعة التي يبلغ فرقها الحد محاطة بإطار.</translation>
    </message>
</context>
<context>
    <name>PatchTint</name>
    <message>
        <source>%1, %2 %</source>
        <translation>%1، %2 %</translation>
    </message>
</context>
<context>
    <name>PatchWindow</name>
    <message>
        <source>Cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>ماجنتا</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>أسود</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation>الألوان المصمتة</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>الرقع</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>الرقعة</translation>
    </message>
    <message>
        <source>L*</source>
        <translation>L*‎</translation>
    </message>
    <message>
        <source>a*</source>
        <translation>a*‎</translation>
    </message>
    <message>
        <source>b*</source>
        <translation>b*‎</translation>
    </message>
    <message>
        <source>Delta E</source>
        <translation>دلتا E</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>الألوان الأساسية</translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation>الطبعات المتراكبة</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>الأحبار</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>الحبر</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>الكثافة</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>الصور (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>جميع الملفات (*)</translation>
    </message>
    <message>
        <source>"%1" is no file.</source>
        <translation>‏«‎%1» ليس ملفًا.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>تتعذر قراءة «‎%1»: %2.</translation>
    </message>
    <message>
        <source>"%1" is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation>‏«‎%1» كبيرة جدًا: %2 × %3 بكسل، وتحتاج إلى أكثر من %4 ميغابايت من الذاكرة.</translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation>فتح الصور</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation>فتح الصور (&amp;O)...</translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation>عرض لوحة الاختبار (&amp;C)</translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation>المعروض:</translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation>بين الصورتين الأوليين، حسب CIEDE2000</translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation>حرّك الفأرة فوق صورة.</translation>
    </message>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1، y %2</translation>
    </message>
</context>
<context>
    <name>PluginPanel</name>
    <message>
        <source>Changed; what is in bold is not saved.</source>
        <translation>تغيّرت الإعدادات؛ وما هو بخط عريض غير محفوظ.</translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation>هذه الإعدادات محفوظة.</translation>
    </message>
    <message>
        <source>The page's defaults; nothing is saved yet.</source>
        <translation>القيم الافتراضية للصفحة؛ لم يُحفظ شيء بعد.</translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation>صفحات إعداد من الملحقات</translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder "%1"; put one there and start the gallery again.</source>
        <translation>لم يُعثر على أي ملحق. يُبحث عن الملحقات في المجلد «‎%1»؛ ضع ملحقًا هناك وأعد تشغيل المعرض.</translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation>الملحقات الموجودة (&amp;P):</translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation>الملحقات الموجودة</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>الفئة</translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation>الإعدادات، مقروءة مباشرةً (&amp;K):</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>حفظ (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>استعادة (&amp;R)</translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation>الورق (&amp;R):</translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation>مطلي، 115 غ/م²</translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation>غير مطلي، 120 غ/م²</translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation>ورق صحف، 45 غ/م²</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>هدف العرض (&amp;I):</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>قياس لوني نسبي</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>قياس لوني مطلق</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>إدراكي</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>تشبع</translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation>حد إجمالي الحبر (&amp;N):</translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation>تفاوت دلتا E المسموح (&amp;E):</translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation>تعويض النقطة السوداء (&amp;O)</translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation>عرض النص (&amp;X)</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>التنسيق (&amp;M):</translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation>الرمز ‎%p للنسبة المئوية، و‎%v للقيمة، و‎%m لعدد الخطوات.</translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation>معكوس (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>رأسي (&amp;U)</translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation>الرسائل المستلمة</translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation>الرسائل (&amp;M):</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>الموضوع</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>اسم الدخول</translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation>كما وردت (&amp;E):</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>مسح (&amp;R)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
</context>
<context>
    <name>ReportOptionsPanel</name>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>الصيغة (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>التفاوت المسموح (&amp;T):</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>الأزواج (&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>الورق (&amp;P):</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>الاتجاه (&amp;R):</translation>
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
        <translation>حسب الرقم</translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation>الأكبر أولًا</translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation>الأصغر أولًا</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>عمودي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>التفاوت المسموح</translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation>ترتيب الأزواج</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>الورق</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation>تصدير PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>مستندات PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>الإخراج</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>تصدير PDF (&amp;E)...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>طباعة (&amp;N)...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation>فتح PDF (&amp;O)</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in "%1"</source>
        <translation>
            <numerusform>لا صفحات في «‎%1»</numerusform>
            <numerusform>صفحة واحدة في «‎%1»</numerusform>
            <numerusform>صفحتان في «‎%1»</numerusform>
            <numerusform>%n صفحات في «‎%1»</numerusform>
            <numerusform>%n صفحة في «‎%1»</numerusform>
            <numerusform>%n صفحة في «‎%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation>أُلغي، ولم يُكتب شيء.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>لم يُكتب شيء.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>تمت الطباعة.</translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation>أُلغي، وربما طُبعت بعض الصفحات.</translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation>فشلت الطباعة.</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation>مقارنة ألوان كصفحات ورقية: مرسومة على سطح التقرير، بجداول موزعة على الصفحات، ومُخرَجة إلى ملف PDF أو طابعة.</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>صفحات التقرير</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation>الشركة (&amp;C):</translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation>تظهر في رأس التقرير</translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation>القائم بالقياس (&amp;E):</translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation>من أجرى القياس</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>مقاس الورق (&amp;Z):</translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation>التاريخ على كل صفحة (&amp;D)</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation>تقرير القياس</translation>
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
        <translation>من %1</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>الصفحة (&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>التكبير (&amp;Z):</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>ملاءمة العرض</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>ملاءمة الصفحة</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>أصغر</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>أكبر</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>التكبير</translation>
    </message>
</context>
<context>
    <name>SambaServerPanel</name>
    <message>
        <source>Local Samba server</source>
        <translation>خادم Samba محلي</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>الخلل (&amp;T):</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>كلمة مرور خاطئة</translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation>مشاركة غير معروفة</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>خادم صامت</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>لا مجيب</translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation>للخادم الآن منفذ آخر: محركات الأقراص المضافة من قبل لا تقود إليه.</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation>فحص مجلد</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>المجلد (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>استعراض (&amp;B)...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>بدء الفحص (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>فحص مجلد</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>الإدخالات</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>التحذيرات</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>الأخطاء</translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation>الإدخالات في الثانية</translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation>النماذج التي تحدد موعد تكرار الحدث، والترميز الذي تُقرأ به الملفات النصية. احفظ، فيحسب المعرض الأحداث التالية ويقرأ ملفًا من جديد.</translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation>الإشارات</translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation>إشارات الشريط (&amp;G): %1</translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation>إشارات الشريط</translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Import:</source>
        <translation>الاستيراد:</translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation>في القائمة المنسدلة (&amp;X)</translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation>في قائمة أوامر (&amp;M)</translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation>السماح بتغيير الأسماء كتابةً (&amp;T)</translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation>عرض التسمية (&amp;W):</translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation>نص التسمية</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation>الشريط الذي يدير به المستخدم مجموعة من الإعدادات المسبقة، كل منها في ملف مستقل: اختيار وإنشاء وتكرار وإعادة تسمية واستيراد وتصدير وحذف.</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation>لا يُعرض رد الخدمة.</translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation>رد الخدمة كبير جدًا.</translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation>لا مجيب على %1.</translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation>أغلقت الخدمة الاتصال قبل أن ترد.</translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation>لم ترسل الخدمة شيئًا منذ %1 ث.</translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation>ردت الخدمة بحالة HTTP رقمها %1.</translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation>لا يمكن سؤال الخدمة: %1.</translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation>الجلسة</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>مسح (&amp;R)</translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation>مستعرض المشاركات</translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation>استعراض هذا الخادم (&amp;B)...</translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation>استعراض الشبكة (&amp;N)...</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>المختار: ‎%1</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>لم يُختر شيء.</translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation>لم يُعثر على شيء. %1</translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation>يبيّن سجل محركات الأقراص السبب.</translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation>اختر مشاركة من الخادم لمحركات الأقراص التي تُضاف.</translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation>نسخة مصغّرة، مرتّبة</translation>
    </message>
    <message>
        <source>By name:</source>
        <translation>حسب الاسم:</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>استيراد...</translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation>الإعدادات المسبقة نفسها عبر وسيط ترتيب. تحل قائمة الزر محل الأزرار الأخرى.</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation>الطيف</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>من (&amp;R):</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>إلى (&amp;T):</translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation>الطول الموجي الأول</translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation>الطول الموجي الأخير</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> نم</translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation>مدى قوة رؤية العين للضوء عند كل طول موجي: الدالة y للمراقب القياسي CIE 1931. ويقع الطيف خلفها.</translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation>الكفاءة الضوئية من %1 إلى %2 نم</translation>
    </message>
</context>
<context>
    <name>SpectrumPlot</name>
    <message>
        <source>%1 nm</source>
        <translation>%1 نم</translation>
    </message>
</context>
<context>
    <name>StyleSamplePanel</name>
    <message>
        <source>Sample</source>
        <translation>عيّنة</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>المهمة (&amp;J):</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>الورق (&amp;P):</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>مطلي</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>ورق صحف</translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation>النسخ من أصل %1 (&amp;C):</translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation>علامات القص (&amp;M)</translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation>ترسمه ورقة الأنماط المرفقة</translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation>النسخ المنجزة</translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation>طباعة البروفة (&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation>ورقة الأنماط</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>ورقة الأنماط (&amp;H):</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>ورقة الأنماط</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>إعادة القراءة (&amp;R)</translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation>النص كما يُطبَّق (&amp;X):</translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation>النص كما يُطبَّق</translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation>لا توجد ورقة أنماط: تبدو عناصر الواجهة كما يرسمها نمطها.</translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation>مفتاح التبديل</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُمكّن</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 بكسل</translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation>مفتاح تبديل بحجم %1 بكسل</translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation>مفتاح تبديل بحجم %1 بكسل، معطّل</translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation>تشغيل الكل (&amp;T)</translation>
    </message>
    <message>
        <source>on</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation>النقرات: 0</translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation>النقرات: %1، آخرها على مفتاح %2 بكسل: %3</translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation>لا يأتي الحدث أبدًا.</translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation>حسب الإعدادات المحفوظة يأتي الحدث التالي في:</translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation>الحدث المُشغِّل</translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation>إتاحة «كل ساعة» (&amp;H)</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>حفظ (&amp;V)</translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation>تحميل (&amp;O)</translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation>معايرة جهاز القياس</translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation>منطقة العمل مقفلة</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>كلمة المرور (&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>إلغاء القفل (&amp;U)</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>هذه ليست كلمة المرور.</translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation>حوار التحديث</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>البحث عن تحديثات (&amp;U)</translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation>عرض في المجلد (&amp;O)</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>"Download and Install" writes the file to "%1", which a check makes where it is missing, "Download" to the folder that you choose. The file is a harmless text. "Install" opens it with the desktop's program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: "Show in Folder" shows the file.</source>
        <translation>يكتب «تنزيل وتثبيت» الملف في «‎%1»، الذي ينشئه البحث إن لم يكن موجودًا، ويكتبه «تنزيل» في المجلد الذي تختاره. الملف نص غير ضار. ويفتحه «تثبيت» ببرنامج النصوص في النظام ويغلق جميع نوافذ المعرض. وإن لم يوجد برنامج كهذا فلا يحدث شيء: يعرض «عرض في المجلد» الملف.</translation>
    </message>
    <message>
        <source>There is no folder "%1".</source>
        <translation>لا يوجد مجلد «‎%1».</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>لا يوجد برنامج يعرض المجلد «‎%1».</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>التحديث</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;الجديد في هذا الإصدار&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;قواعد البيانات: مليون صف، صفحة بعد صفحة&lt;/li&gt;&lt;li&gt;التحديثات: ما تراه الآن&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;المزيد على &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation>وشيء آخر أيضًا. </translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation>الحوار الذي يبحث فيه المستخدم عن إصدار أحدث وينزّله ويثبّته. شغّل خدمة تحديث حقيقية على هذا الكمبيوتر، واختر ما تعرضه، وابحث عن تحديثات.</translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation>خدمة تحديث محلية</translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation>المعروض (&amp;E):</translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation>إصدار أحدث</translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation>إصدار أحدث، تجريبي</translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation>تنزيل بطيء</translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation>تنزيل ينقطع</translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation>إصدار بلا ملف</translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation>ملاحظات إصدار طويلة</translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation>هذا الإصدار نفسه</translation>
    </message>
    <message>
        <source>Older release</source>
        <translation>إصدار أقدم</translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation>رد فارغ</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>رد ليس JSON</translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation>الحالة 404</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>لا مجيب</translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>ما تلقته الخدمة (&amp;G):</translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation>إشارات الحوار (&amp;H):</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation>إعدادات التحديث</translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation>تحميل الإعدادات (&amp;D)</translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation>حفظ الإعدادات (&amp;T)</translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation>الإعدادات المخزّنة:</translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation>الإعدادات المخزّنة</translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation>يبحث الحوار أعلاه تلقائيًا، والفاصل بالأيام: %1.</translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation>لا يبحث الحوار أعلاه تلقائيًا.</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation>تأثيرات المرور بالمؤشر (&amp;H)</translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation>إبراز القيمة الأعمق تحت الفأرة.</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>معاينة (&amp;P)</translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation>عرض محتوى القوائم والقواميس في سطرها.</translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation>توسيع مستويين (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>طي (&amp;C)</translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation>القيم: %1. أحرف السطر: %2. %3</translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation>عُرضت خلال %1 ملي ثانية.</translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation>تم التوسيع خلال %1 ملي ثانية.</translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation>تم الطي خلال %1 ملي ثانية.</translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation>مربع عددي مع منزلق</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>التعريض</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source>darker</source>
        <translation>أغمق</translation>
    </message>
    <message>
        <source>lighter</source>
        <translation>أفتح</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>غاما</translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation>تفاوت دلتا E المسموح</translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation>يراه أي شخص</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>التنعيم</translation>
    </message>
    <message>
        <source>off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation>إجمالي تغطية الحبر</translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation>ورق خالٍ</translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation>أربعة أحبار كاملة</translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation>إجمالي تغطية الحبر، معطّل</translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation>&amp;valueChanged: %1</translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation>إشارات valueChanged</translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation>القيمة المكتوبة في المربع تنتقل إلى المنزلق وتعود، لذا يُبلَّغ عن التحرير الواحد أكثر من مرة. لا تغيّر العجلة شيئًا: فهي تمرّر الصفحة.</translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation>إعدادات المعرض (&amp;G)</translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation>ملف JSON (&amp;N)...</translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation>سؤال الخدمة (&amp;K)</translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation>قيمة بأي عمق كسطر واحد من نص ملوّن، يتوسّع مستوى بعد مستوى: إعدادات هذا المعرض، أو ملف JSON، أو الرد المباشر لخدمة تحديث.</translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation>إعدادات هذا المعرض</translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation>لم يُخزَّن شيء بعد: يحفظ المعرض إعداداته عند إنهائه.</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>ملف JSON</translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation>ملفات JSON (*.json);;جميع الملفات (*)</translation>
    </message>
    <message>
        <source>File "%1"</source>
        <translation>الملف «‎%1»</translation>
    </message>
    <message>
        <source>The file "%1" is not shown.</source>
        <translation>لا يُعرض الملف «‎%1».</translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation>خدمة التحديث متوقفة. يشغّلها مفتاح تبديلها.</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>في انتظار الرد...</translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation>رد خدمة التحديث</translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>يتعذر إنشاء المجلد ‎%1</translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation>نموذج واجهة الويب لبرنامج، بجانب خادم ويب حقيقي يقدّم صفحة من المعرض. لا يصل إليه إلا هذا الكمبيوتر، عبر الرابط الذي فيه 127.0.0.1؛ وتعمل الروابط الأخرى متى سُمح لأجهزة كمبيوتر أخرى بالاتصال.</translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation>نموذج واجهة الويب</translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation>خادم الويب</translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation>السماح باتصال أجهزة أخرى (&amp;P)</translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation>بدونه يستمع الخادم على 127.0.0.1 فقط، ولا يقود إليه أي رابط آخر في النموذج.</translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation>زيارة الصفحة (&amp;T)</translation>
    </message>
    <message>
        <source>the box "Enabled" of the panel is not checked</source>
        <translation>خانة «مُمكّن» في النموذج غير محددة</translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation>يحتاج HTTPS إلى ملف شهادة</translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>ما تلقاه الخادم (&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation>زيارات المعرض نفسه (&amp;O):</translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation>إتاحة HTTPS (&amp;H)</translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation>إنشاء شهادة (&amp;C)</translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation>ملء المثال (&amp;X)</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>عرض الإعدادات (&amp;W)</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>حفظ (&amp;E)</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>تحميل (&amp;D)</translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation>إعدادات واجهة الويب</translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation>حُفظت في إعدادات المعرض.</translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation>حُمّلت من إعدادات المعرض.</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>لم يُحفظ شيء بعد.</translation>
    </message>
    <message>
        <source>The example is for the user "%1" with the password "%2".</source>
        <translation>المثال للمستخدم «%1» بكلمة المرور «%2».</translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation>توجد شهادة لـ localhost و127.0.0.1 في ‎%1. وسيحذّر المتصفح منها.</translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation>لم تُنشأ أي شهادة: %1</translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>العملية</translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation>وقت إنشاء هذه الصفحة</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>البروتوكول</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>everybody</source>
        <translation>الجميع</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation>المتوسط %1، الأكبر %2.</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>معرض TXGUICommon</translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation>كيفية تقديمها</translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation>صفحات المعرض</translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation>رقع لوحة الاختبار، الأقدم والأحدث، مع ΔE 2000</translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation>%1: الحالة %2، %3 بايت</translation>
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
        <translation>حالة عناصر الواجهة</translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program's settings. Another gives them back.</source>
        <translation>استدعاء واحد يحفظ موضع النافذة وحجمها ومقسّماتها وأعمدة عروضها، في قاموس متداخل واحد لإعدادات البرنامج. واستدعاء آخر يستعيدها.</translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation>فتح نافذة (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation>حفظ الحالة (&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation>بعثرة (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation>استعادة الحالة (&amp;R)</translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation>الحالة المحفوظة (&amp;E):</translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation>الحالة المحفوظة</translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>البايتات</translation>
    </message>
</context>
<context>
    <name>WorkersPanel</name>
    <message>
        <source>Several workers, one delegate</source>
        <translation>عدة خيوط عمل ومفوّض واحد</translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation>الملفات في (&amp;I):</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>استعراض (&amp;W)...</translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation>قراءة الملفات (&amp;R)</translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation>إلغاء (&amp;E)</translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation>قراءة ملفات مجلد</translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation>الخيوط (&amp;H):</translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation>تقدم خيوط العمل</translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation>بلاغات خيوط العمل</translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation>مرات رسم الشريط</translation>
    </message>
    <message>
        <source>Files read</source>
        <translation>الملفات المقروءة</translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation>المقروء في الثانية</translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>قُرئ %1 خلال %2 ث؛ نسخ من ملفات أخرى: %3، غير قابلة للقراءة: %4.</translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>أُلغي بعد قراءة %1 خلال %2 ث؛ نسخ من ملفات أخرى: %3، غير قابلة للقراءة: %4.</translation>
    </message>
</context>
</TS>
