<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
    <context>
        <name>bvco</name>
        <message>
            <source>Color Options</source>
            <translation>خيارات الألوان</translation>
        </message>
        <message>
            <source>Advanced Color Options</source>
            <translation>خيارات الألوان المتقدمة</translation>
        </message>
        <message>
            <source>Hide Advanced Options</source>
            <translation>إخفاء الخيارات المتقدمة</translation>
        </message>
        <message>
            <source>Management Profile</source>
            <extracomment>Manage Profiles…</extracomment>
            <translation>إدارة ملفات التعريف…</translation>
        </message>
        <message>
            <source>Download Manager</source>
            <translation>مدير التنزيل</translation>
        </message>
        <message>
            <source>Quick Color</source>
            <translation>اللون السريع</translation>
        </message>
        <message>
            <source>Quick Color:</source>
            <translation>اللون السريع:</translation>
        </message>
        <message>
            <source>Brightness</source>
            <translation>السطوع</translation>
        </message>
        <message>
            <source>Brightness:</source>
            <translation>السطوع:</translation>
        </message>
        <message>
            <source>Color as Grayscale</source>
            <translation>الألوان بتدرج الرمادي</translation>
        </message>
        <message>
            <source>Color Separation</source>
            <translation>فصل الألوان</translation>
        </message>
        <message>
            <source>EconoMode</source>
            <extracomment>Economy Print</extracomment>
            <translation>الطباعة الاقتصادية</translation>
        </message>
        <message>
            <source>EdgeType</source>
            <extracomment>Edge Strength</extracomment>
            <translation>قوة الحواف</translation>
        </message>
        <message>
            <source>EdgeType:</source>
            <extracomment>Edge Strength:</extracomment>
            <translation>قوة الحواف:</translation>
        </message>
        <message>
            <source>AutoTrapping</source>
            <extracomment>Auto Trapping</extracomment>
            <translation>التراكب التلقائي</translation>
        </message>
        <message>
            <source>BlackOverprint</source>
            <extracomment>Black Overprint</extracomment>
            <translation>الطباعة الفوقية للأسود</translation>
        </message>
        <message>
            <source>BlackOverprint:</source>
            <extracomment>Black Overprint:</extracomment>
            <translation>الطباعة الفوقية للأسود:</translation>
        </message>
        <message>
            <source>Image</source>
            <translation>الصور</translation>
        </message>
        <message>
            <source>Text</source>
            <translation>النصوص</translation>
        </message>
        <message>
            <source>Graphics</source>
            <translation>الرسومات</translation>
        </message>
        <message>
            <source>Simulation</source>
            <translation>المحاكاة</translation>
        </message>
        <message>
            <source>RGB Source:</source>
            <translation>مصدر RGB:</translation>
        </message>
        <message>
            <source>RGB Intent:</source>
            <translation>هدف عرض RGB:</translation>
        </message>
        <message>
            <source>RGB Gray Treatment:</source>
            <translation>معالجة رمادي RGB:</translation>
        </message>
        <message>
            <source>Destination Profile:</source>
            <translation>ملف تعريف الوجهة:</translation>
        </message>
        <message>
            <source>Halftone:</source>
            <translation>الألوان النصفية:</translation>
        </message>
        <message>
            <source>EdgeEnhance:</source>
            <extracomment>Edge Enhancement:</extracomment>
            <translation>تحسين الحواف:</translation>
        </message>
        <message>
            <source>Simulation Profile:</source>
            <translation>ملف تعريف المحاكاة:</translation>
        </message>
        <message>
            <source>Match Paper Color:</source>
            <translation>مطابقة لون الورق:</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment:</source>
            <translation>معالجة رمادي CMYK:</translation>
        </message>
        <message>
            <source>Image RGB Source</source>
            <translation>مصدر RGB للصور</translation>
        </message>
        <message>
            <source>Image RGB Intent</source>
            <translation>هدف عرض RGB للصور</translation>
        </message>
        <message>
            <source>Image RGB Gray Treatment</source>
            <translation>معالجة رمادي RGB للصور</translation>
        </message>
        <message>
            <source>Image Destination Profile</source>
            <translation>ملف تعريف الوجهة للصور</translation>
        </message>
        <message>
            <source>Image Halftone</source>
            <translation>الألوان النصفية للصور</translation>
        </message>
        <message>
            <source>Image EdgeEnhance</source>
            <extracomment>Image Edge Enhancement</extracomment>
            <translation>تحسين الحواف للصور</translation>
        </message>
        <message>
            <source>Text RGB Source</source>
            <translation>مصدر RGB للنصوص</translation>
        </message>
        <message>
            <source>Text RGB Intent</source>
            <translation>هدف عرض RGB للنصوص</translation>
        </message>
        <message>
            <source>Text RGB Gray Treatment</source>
            <translation>معالجة رمادي RGB للنصوص</translation>
        </message>
        <message>
            <source>Text Destination Profile</source>
            <translation>ملف تعريف الوجهة للنصوص</translation>
        </message>
        <message>
            <source>Text Halftone</source>
            <translation>الألوان النصفية للنصوص</translation>
        </message>
        <message>
            <source>Text EdgeEnhance</source>
            <extracomment>Text Edge Enhancement</extracomment>
            <translation>تحسين الحواف للنصوص</translation>
        </message>
        <message>
            <source>Graphics RGB Source</source>
            <translation>مصدر RGB للرسومات</translation>
        </message>
        <message>
            <source>Graphics RGB Intent</source>
            <translation>هدف عرض RGB للرسومات</translation>
        </message>
        <message>
            <source>Graphics RGB Gray Treatment</source>
            <translation>معالجة رمادي RGB للرسومات</translation>
        </message>
        <message>
            <source>Graphics Destination Profile</source>
            <translation>ملف تعريف الوجهة للرسومات</translation>
        </message>
        <message>
            <source>Graphics Halftone</source>
            <translation>الألوان النصفية للرسومات</translation>
        </message>
        <message>
            <source>Graphics EdgeEnhance</source>
            <extracomment>Graphics Edge Enhancement</extracomment>
            <translation>تحسين الحواف للرسومات</translation>
        </message>
        <message>
            <source>Simulation Profile</source>
            <translation>ملف تعريف المحاكاة</translation>
        </message>
        <message>
            <source>Match Paper Color</source>
            <translation>مطابقة لون الورق</translation>
        </message>
        <message>
            <source>CMYK Gray Treatment</source>
            <translation>معالجة رمادي CMYK</translation>
        </message>
        <message>
            <source>Disk</source>
            <translation>القرص</translation>
        </message>
        <message>
            <source>Card</source>
            <translation>البطاقة</translation>
        </message>
        <message>
            <source>ProfileTitle</source>
            <extracomment>Profile Management</extracomment>
            <translation>إدارة ملفات التعريف</translation>
        </message>
        <message>
            <source>Not available while %1 is on. Turn it off to use this setting.</source>
            <translation>غير متاح عند تشغيل «%1». أوقفه لاستخدام هذا الإعداد.</translation>
        </message>
        <message>
            <source>Available only while %1 is set to %2. Choose that to use this setting.</source>
            <translation>متاح فقط عند ضبط «%1» على «%2». اختر ذلك لاستخدام هذا الإعداد.</translation>
        </message>
        <message>
            <source>Not available while %1 is set to %2. Choose another to use this setting.</source>
            <translation>غير متاح عند ضبط «%1» على «%2». اختر غير ذلك لاستخدام هذا الإعداد.</translation>
        </message>
        <message>
            <source>Only administrators of the print system can manage profiles.</source>
            <translation>لا يمكن لغير مسؤولي نظام الطباعة إدارة ملفات التعريف.</translation>
        </message>
        <message>
            <source>%1 is on: one setting is not used.</source>
            <translation>بسبب تشغيل «%1» هناك إعداد واحد غير مستخدم.</translation>
        </message>
        <message>
            <source>%1 is on: %2 settings are not used.</source>
            <translation>بسبب تشغيل «%1» لا تُستخدم بعض الإعدادات، وعددها: %2.</translation>
        </message>
        <message>
            <source>Turn Off</source>
            <translation>إيقاف</translation>
        </message>
        <message>
            <source>Turn off %1</source>
            <translation>إيقاف %1</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>الإعدادات العامة</translation>
        </message>
        <message>
            <source>RGB</source>
            <extracomment>RGB Source</extracomment>
            <translation>مصدر RGB</translation>
        </message>
        <message>
            <source>SIM</source>
            <extracomment>Simulation</extracomment>
            <translation>المحاكاة</translation>
        </message>
        <message>
            <source>DST</source>
            <extracomment>Destination</extracomment>
            <translation>الوجهة</translation>
        </message>
        <message>
            <source>Profile Class:</source>
            <extracomment>Profile Cla&amp;ss:</extracomment>
            <translation>&amp;فئة ملف التعريف:</translation>
        </message>
        <message>
            <source>Profiles:</source>
            <extracomment>&amp;Profiles:</extracomment>
            <translation>ملفات الت&amp;عريف:</translation>
        </message>
        <message>
            <source>Add</source>
            <extracomment>&amp;Add</extracomment>
            <translation>إ&amp;ضافة</translation>
        </message>
        <message>
            <source>Edit</source>
            <extracomment>&amp;Edit</extracomment>
            <translation>&amp;تحرير</translation>
        </message>
        <message>
            <source>Delete</source>
            <extracomment>&amp;Delete</extracomment>
            <translation>&amp;حذف</translation>
        </message>
        <message>
            <source>Entry</source>
            <translation>الإدخال</translation>
        </message>
        <message>
            <source>File Name:</source>
            <extracomment>&amp;File Name:</extracomment>
            <translation>ا&amp;سم الملف:</translation>
        </message>
        <message>
            <source>Browse...</source>
            <extracomment>&amp;Browse…</extracomment>
            <translation>استع&amp;راض…</translation>
        </message>
        <message>
            <source>Profile Name:</source>
            <extracomment>Profile &amp;Name:</extracomment>
            <translation>اسم &amp;ملف التعريف:</translation>
        </message>
        <message>
            <source>Location:</source>
            <extracomment>L&amp;ocation:</extracomment>
            <translation>المو&amp;قع:</translation>
        </message>
        <message>
            <source>Confirm Entry</source>
            <extracomment>&amp;Confirm Entry</extracomment>
            <translation>تأ&amp;كيد الإدخال</translation>
        </message>
        <message>
            <source>Discard Entry</source>
            <extracomment>D&amp;iscard Entry</extracomment>
            <translation>تجا&amp;هل الإدخال</translation>
        </message>
        <message>
            <source>OK</source>
            <extracomment>O&amp;K</extracomment>
            <translation>م&amp;وافق</translation>
        </message>
        <message>
            <source>Cancel</source>
            <extracomment>Cance&amp;l</extracomment>
            <translation>إ&amp;لغاء</translation>
        </message>
        <message>
            <source>On Printer</source>
            <translation>على الطابعة</translation>
        </message>
        <message>
            <source>File Name</source>
            <translation>اسم الملف</translation>
        </message>
        <message>
            <source>Profile Name</source>
            <translation>اسم ملف التعريف</translation>
        </message>
        <message>
            <source>Location</source>
            <translation>الموقع</translation>
        </message>
        <message>
            <source>In Menu</source>
            <translation>في القائمة</translation>
        </message>
        <message>
            <source>On the printer</source>
            <translation>على الطابعة</translation>
        </message>
        <message>
            <source>Not on the printer</source>
            <translation>ليس على الطابعة</translation>
        </message>
        <message>
            <source>Shown in the menus</source>
            <translation>يظهر في القوائم</translation>
        </message>
        <message>
            <source>Not shown in the menus</source>
            <translation>لا يظهر في القوائم</translation>
        </message>
        <message>
            <source>A profile that is on the printer cannot be deleted</source>
            <translation>لا يمكن حذف ملف تعريف موجود على الطابعة</translation>
        </message>
        <message>
            <source>Choose a Profile</source>
            <translation>اختيار ملف تعريف</translation>
        </message>
        <message>
            <source>NAME.ICC</source>
            <translation>NAME.ICC</translation>
        </message>
        <message>
            <source>The name that the menus show</source>
            <translation>الاسم الذي يظهر في القوائم</translation>
        </message>
        <message>
            <source>NameRule</source>
            <extracomment>File name: up to 27 characters, a dot and up to 3 more; no spaces and none of " * + , / : ; &lt; = &gt; ? @ [ \ ] |. Profile name: up to 30 letters, digits, signs and spaces, without accents.</extracomment>
            <translation>اسم الملف: حتى 27 حرفًا، ثم نقطة وحتى 3 أحرف أخرى؛ بلا مسافات وبلا أيٍّ من ⁦" * + , / : ; &lt; = &gt; ? @ [ \ ] |⁩. اسم ملف التعريف: حتى 30 من الحروف اللاتينية والأرقام والعلامات والمسافات، دون حروف ذات علامات تشكيل.</translation>
        </message>
        <message>
            <source>No profiles yet. Those of a network printer appear once it has been asked; Add enters one by hand.</source>
            <translation>لا توجد ملفات تعريف بعد. تظهر ملفات تعريف طابعة الشبكة بعد الاستعلام منها؛ ولإدخال ملف يدويًا اضغط «إضافة».</translation>
        </message>
        <message>
            <source>Entry, not confirmed yet</source>
            <translation>إدخال لم يُؤكَّد بعد</translation>
        </message>
        <message>
            <source>Entry, discarded</source>
            <translation>إدخال جرى تجاهله</translation>
        </message>
        <message>
            <source>Entry: this file is in the list already</source>
            <translation>الإدخال: هذا الملف في القائمة بالفعل</translation>
        </message>
        <message>
            <source>Entry: the list is full</source>
            <translation>الإدخال: القائمة ممتلئة</translation>
        </message>
        <message>
            <source>Select a profile first</source>
            <extracomment>Select a profile first.</extracomment>
            <translation>حدد ملف تعريف أولًا.</translation>
        </message>
        <message>
            <source>Confirm or discard the entry first</source>
            <extracomment>Confirm or discard the entry first.</extracomment>
            <translation>أكّد الإدخال أو تجاهله أولًا.</translation>
        </message>
        <message>
            <source>Press Add, or select a profile and press Edit</source>
            <extracomment>Press Add, or select a profile and press Edit.</extracomment>
            <translation>اضغط «إضافة»، أو حدد ملف تعريف واضغط «تحرير».</translation>
        </message>
        <message>
            <source>Type a file name first; it cannot begin with a dot</source>
            <extracomment>Type a file name first; it cannot begin with a dot.</extracomment>
            <translation>اكتب اسم ملف أولًا؛ ولا يجوز أن يبدأ بنقطة.</translation>
        </message>
        <message>
            <source>The printer names this file; only the profile name can be changed</source>
            <extracomment>The printer names this file; only the profile name can be changed.</extracomment>
            <translation>الطابعة هي التي تسمّي هذا الملف؛ لا يمكن تغيير سوى اسم ملف التعريف.</translation>
        </message>
        <message>
            <source>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in</source>
            <extracomment>The entry is not confirmed: OK leaves it out, Confirm Entry takes it in.</extracomment>
            <translation>لم يُؤكَّد الإدخال: «موافق» يستبعده، و«تأكيد الإدخال» يضيفه.</translation>
        </message>
        <message>
            <source>The printer reported this profile when it was last asked</source>
            <extracomment>The printer reported this profile when it was last asked.</extracomment>
            <translation>أبلغت الطابعة عن ملف التعريف هذا في آخر استعلام.</translation>
        </message>
        <message>
            <source>The printer did not report this profile when it was last asked</source>
            <extracomment>The printer did not report this profile when it was last asked.</extracomment>
            <translation>لم تبلغ الطابعة عن ملف التعريف هذا في آخر استعلام.</translation>
        </message>
        <message>
            <source>Entered by hand</source>
            <extracomment>Entered by hand.</extracomment>
            <translation>أُدخل يدويًا.</translation>
        </message>
    </context>
</TS>
