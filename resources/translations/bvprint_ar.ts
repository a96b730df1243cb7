<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
    <context>
        <name>bvprint</name>
        <message>
            <source>%1 “%2”</source>
            <comment>option and choice</comment>
            <translation>%1 «%2»</translation>
        </message>
        <message>
            <source>%1 and %2 do not go together.</source>
            <comment>options and choices</comment>
            <translation>لا يمكن الجمع بين %1 و%2.</translation>
        </message>
        <message>
            <source>, </source>
            <comment>between options</comment>
            <translation>، </translation>
        </message>
        <message>
            <source>Change %1 to %2</source>
            <translation>تغيير %1 إلى %2</translation>
        </message>
        <message>
            <source>Turn %1 on</source>
            <translation>تشغيل %1</translation>
        </message>
        <message>
            <source>Turn %1 off</source>
            <translation>إيقاف %1</translation>
        </message>
        <message>
            <source>Document</source>
            <translation>مستند</translation>
        </message>
        <message>
            <source>The document does not come to its end.</source>
            <translation>لم يصل المستند كاملًا في الوقت المحدد.</translation>
        </message>
        <message>
            <source>The pages of the document could not be counted in time.</source>
            <translation>تعذّر عدّ صفحات المستند في الوقت المحدد.</translation>
        </message>
        <message>
            <source>Job %1 is not held: it waits for its turn, and is printed as it is.</source>
            <translation>المهمة %1 غير معلّقة: إنها تنتظر دورها وستُطبع كما هي.</translation>
        </message>
        <message>
            <source>Job %1 is being printed already.</source>
            <translation>المهمة %1 قيد الطباعة بالفعل.</translation>
        </message>
        <message>
            <source>Job %1 has begun to print, and stopped. Resume it in the system's printer settings.</source>
            <translation>بدأت طباعة المهمة %1 ثم توقفت. استأنفها من إعدادات الطابعات في النظام.</translation>
        </message>
        <message>
            <source>Job %1 was canceled. Print the document again.</source>
            <translation>أُلغيت المهمة %1. اطبع المستند مرة أخرى.</translation>
        </message>
        <message>
            <source>Job %1 failed. Print the document again.</source>
            <translation>فشلت المهمة %1. اطبع المستند مرة أخرى.</translation>
        </message>
        <message>
            <source>Job %1 has been printed already.</source>
            <translation>طُبعت المهمة %1 من قبل.</translation>
        </message>
        <message>
            <source>Other choices decide this now.</source>
            <translation>تحدده خيارات أخرى حاليًا.</translation>
        </message>
        <message>
            <source>The picture %1 cannot be written.</source>
            <translation>تعذّرت كتابة الصورة %1.</translation>
        </message>
        <message>
            <source>No print server: jobs are written to %1</source>
            <translation>لا يوجد خادم طباعة: تُكتب المهام في ⁨%1⁩</translation>
        </message>
        <message>
            <source>The print server has no printer %1 any more; choose another one.</source>
            <translation>لم تعد الطابعة %1 موجودة على خادم الطباعة؛ اختر طابعة أخرى.</translation>
        </message>
        <message>
            <source>The printer %1 cannot print %2: it does not take documents of that format. Save it as PDF and print that.</source>
            <translation>لا تستطيع الطابعة %1 طباعة %2: فهي لا تقبل مستندات بهذا التنسيق. احفظه بتنسيق PDF ثم اطبعه.</translation>
        </message>
        <message>
            <source>The printer %1 takes no jobs just now; choose another one, or ask who looks after it.</source>
            <translation>لا تقبل الطابعة %1 أي مهام الآن؛ اختر طابعة أخرى أو اسأل المسؤول عنها.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1; ask who looks after it.</source>
            <translation>لا يُسمح لك بالطباعة على الطابعة %1؛ اسأل المسؤول عنها.</translation>
        </message>
        <message>
            <source>You may not print on the printer %1 without logging in to the print server; ask who looks after it.</source>
            <translation>لا يمكنك الطباعة على الطابعة %1 من دون تسجيل الدخول إلى خادم الطباعة؛ اسأل المسؤول عنها.</translation>
        </message>
        <message>
            <source>out of paper: fill a tray</source>
            <translation>نفد الورق: املأ أحد الأدراج</translation>
        </message>
        <message>
            <source>needs paper: fill a tray</source>
            <translation>تحتاج إلى ورق: املأ أحد الأدراج</translation>
        </message>
        <message>
            <source>little paper left</source>
            <translation>أوشك الورق على النفاد</translation>
        </message>
        <message>
            <source>paper jam: take out the paper that is stuck</source>
            <translation>انحشار ورق: أخرج الورق العالق</translation>
        </message>
        <message>
            <source>out of toner: change the cartridge</source>
            <translation>نفد مسحوق الحبر: استبدل الخرطوشة</translation>
        </message>
        <message>
            <source>little toner left</source>
            <translation>أوشك مسحوق الحبر على النفاد</translation>
        </message>
        <message>
            <source>out of toner or ink: change the cartridge</source>
            <translation>نفد مسحوق الحبر أو الحبر السائل: استبدل الخرطوشة</translation>
        </message>
        <message>
            <source>little toner or ink left</source>
            <translation>أوشك مسحوق الحبر أو الحبر السائل على النفاد</translation>
        </message>
        <message>
            <source>the container for waste toner is full: change it</source>
            <translation>امتلأت حاوية مسحوق الحبر المستهلك: استبدلها</translation>
        </message>
        <message>
            <source>the container for waste toner is almost full</source>
            <translation>أوشكت حاوية مسحوق الحبر المستهلك على الامتلاء</translation>
        </message>
        <message>
            <source>the developer is used up: change it</source>
            <translation>انتهى عمر وحدة الإظهار: استبدلها</translation>
        </message>
        <message>
            <source>the developer is almost used up</source>
            <translation>أوشك عمر وحدة الإظهار على الانتهاء</translation>
        </message>
        <message>
            <source>the drum is used up: change it</source>
            <translation>انتهى عمر الأسطوانة: استبدلها</translation>
        </message>
        <message>
            <source>the drum is almost used up</source>
            <translation>أوشك عمر الأسطوانة على الانتهاء</translation>
        </message>
        <message>
            <source>too hot: let it cool down</source>
            <translation>حرارتها مرتفعة: اتركها حتى تبرد</translation>
        </message>
        <message>
            <source>a door is open: close it</source>
            <translation>أحد الأبواب مفتوح: أغلقه</translation>
        </message>
        <message>
            <source>a cover is open: close it</source>
            <translation>أحد الأغطية مفتوح: أغلقه</translation>
        </message>
        <message>
            <source>a tray is missing: push it in</source>
            <translation>أحد الأدراج غير مركّب: أدخله في مكانه</translation>
        </message>
        <message>
            <source>the output tray is missing: put it in</source>
            <translation>درج الإخراج غير مركّب: ركّبه</translation>
        </message>
        <message>
            <source>the output tray is full: empty it</source>
            <translation>امتلأ درج الإخراج: أفرغه</translation>
        </message>
        <message>
            <source>the output tray is almost full</source>
            <translation>أوشك درج الإخراج على الامتلاء</translation>
        </message>
        <message>
            <source>no room for more jobs: wait for others to be printed</source>
            <translation>لا مكان لمهام أخرى: انتظر حتى تُطبع المهام السابقة</translation>
        </message>
        <message>
            <source>switched off or not connected: switch it on</source>
            <translation>مطفأة أو غير متصلة: شغّلها</translation>
        </message>
        <message>
            <source>switched off: switch it on</source>
            <translation>مطفأة: شغّلها</translation>
        </message>
        <message>
            <source>does not answer: is it switched on and connected?</source>
            <translation>لا تستجيب: هل هي مشغّلة ومتصلة؟</translation>
        </message>
        <message>
            <source>its driver is not complete: ask who looks after it</source>
            <translation>برنامج تشغيلها غير مكتمل: راجع المسؤول عنها</translation>
        </message>
        <message>
            <source>The print server does not tell its jobs: %1.</source>
            <translation>تعذّر الحصول على قائمة المهام من خادم الطباعة: %1.</translation>
        </message>
        <message>
            <source>%1: there is no such profile in your list.</source>
            <translation>%1: لا يوجد ملف تعريف كهذا في قائمتك.</translation>
        </message>
        <message>
            <source>Standard output cannot be written.</source>
            <translation>تتعذر الكتابة إلى الخرج القياسي.</translation>
        </message>
        <message>
            <source>The choices are not complete yet.</source>
            <translation>الاختيارات غير مكتملة بعد.</translation>
        </message>
        <message>
            <source>request id is %1-%2 (%3 file(s))</source>
            <translation>معرف الطلب هو %1-%2 (عدد الملفات: %3)</translation>
        </message>
        <message>
            <source>Nothing is sent without a print server. These would be the options of the job:</source>
            <translation>لا يُرسل شيء من دون خادم طباعة. ستكون خيارات المهمة كما يلي:</translation>
        </message>
        <message>
            <source>The printer's default.</source>
            <translation>الإعداد الافتراضي للطابعة.</translation>
        </message>
        <message>
            <source>Given on the command line.</source>
            <translation>محدد في سطر الأوامر.</translation>
        </message>
        <message>
            <source>Follows from another choice.</source>
            <translation>ناتج عن خيار آخر.</translation>
        </message>
        <message>
            <source>Changed</source>
            <translation>تغيّرت</translation>
        </message>
        <message>
            <source>Unchanged</source>
            <translation>لم تتغير</translation>
        </message>
        <message>
            <source>%1 (default)</source>
            <translation>%1 (افتراضي)</translation>
        </message>
        <message>
            <source>This job</source>
            <translation>هذه المهمة</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>النسخ</translation>
        </message>
        <message>
            <source>Pages to print</source>
            <translation>الصفحات المطلوب طباعتها</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”; lpoptions stores some.</source>
            <translation>ليست لديك إعدادات افتراضية باسم «%1»؛ يمكن حفظها بالأمر lpoptions.</translation>
        </message>
        <message>
            <source>From the preset “%1”.</source>
            <translation>من الإعداد المسبق «⁨%1⁩».</translation>
        </message>
        <message>
            <source>“%1” is no option. Write KEYWORD=CHOICE.</source>
            <translation>«%1» ليس خيارًا. اكتب KEYWORD=CHOICE.</translation>
        </message>
        <message>
            <source>The print dialog no longer opens by itself for your waiting jobs.
</source>
            <translation>لن تُفتح نافذة الطباعة تلقائيًا لمهامك المنتظرة بعد الآن.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from now on and in later sessions.
</source>
            <translation>ستُفتح نافذة الطباعة لمهامك المعلّقة في خادم الطباعة، من الآن وفي الجلسات القادمة.
</translation>
        </message>
        <message>
            <source>The print dialog opens for your jobs that the print server holds, from your next session on.
</source>
            <translation>ستُفتح نافذة الطباعة لمهامك المعلّقة في خادم الطباعة، بدءًا من جلستك القادمة.
</translation>
        </message>
        <message>
            <source>The agent runs in this session already.</source>
            <translation>وكيل الطباعة يعمل بالفعل في هذه الجلسة.</translation>
        </message>
        <message>
            <source>The file %1 cannot be written: %2.</source>
            <translation>تعذّرت كتابة الملف ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>The file %1 cannot be removed: %2.</source>
            <translation>تعذّر حذف الملف ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>Job %1 is in a state that this dialog does not know.</source>
            <translation>المهمة %1 في حالة لا يعرفها هذا البرنامج.</translation>
        </message>
        <message>
            <source>The print server %1 has no job %2. It may have been printed long ago.</source>
            <translation>لا توجد المهمة %2 في خادم الطباعة ⁨%1⁩. ربما طُبعت منذ مدة.</translation>
        </message>
        <message>
            <source>The print server does not tell about job %1: %2.</source>
            <translation>تعذّر الحصول على معلومات المهمة %1 من خادم الطباعة: %2.</translation>
        </message>
        <message>
            <source>Job %1 was sent to the printer “%2”, not to “%3”.</source>
            <translation>أُرسلت المهمة %1 إلى الطابعة «%2»، لا إلى «%3».</translation>
        </message>
        <message>
            <source>Job %1 belongs to somebody else. Only its owner can print it.</source>
            <translation>المهمة %1 تخص شخصًا آخر، ولا يمكن لغير صاحبها طباعتها.</translation>
        </message>
        <message>
            <source>Job %1 is still being sent. Try again in a moment.</source>
            <translation>لا يزال إرسال المهمة %1 جاريًا. أعد المحاولة بعد لحظات.</translation>
        </message>
        <message>
            <source>“%1” is no job. Give its number, as lpstat -o shows it.</source>
            <translation>‏«⁨%1⁩» ليس مهمة. اكتب رقم المهمة كما يعرضه الأمر ⁦lpstat -o⁩.</translation>
        </message>
        <message>
            <source>The options --queue and --job name different printers.</source>
            <translation>الخياران ⁦--queue⁩ و⁦--job⁩ يشيران إلى طابعتين مختلفتين.</translation>
        </message>
        <message>
            <source>Document %1</source>
            <translation>مستند %1</translation>
        </message>
        <message>
            <source>No preview: the documents cannot be kept.</source>
            <translation>المعاينة غير متاحة: تعذّر حفظ المستندات مؤقتًا.</translation>
        </message>
        <message>
            <source>No preview: the print server does not give the document out.</source>
            <translation>المعاينة غير متاحة: لا يتيح خادم الطباعة المستند.</translation>
        </message>
        <message>
            <source>No preview: %1</source>
            <translation>المعاينة غير متاحة: %1</translation>
        </message>
        <message>
            <source>The print server refuses to change job %1, which stays held: %2.</source>
            <translation>رفض خادم الطباعة تغيير المهمة %1، وستبقى معلّقة: %2.</translation>
        </message>
        <message>
            <source>%1 Job %2 stays held.</source>
            <translation>%1 تبقى المهمة %2 معلّقة.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is canceled. Look at the printer's jobs.</source>
            <translation>لم يؤكد خادم الطباعة إلغاء المهمة %1. راجع مهام الطابعة.</translation>
        </message>
        <message>
            <source>Job %1 could not be canceled: %2.</source>
            <translation>تعذّر إلغاء المهمة %1: %2.</translation>
        </message>
        <message>
            <source>%1 is no file of this computer; save the document here first.</source>
            <translation>‏⁨%1⁩ ليس ملفًا على هذا الحاسوب؛ احفظ المستند هنا أولًا.</translation>
        </message>
        <message>
            <source>%1 cannot be written: %2.</source>
            <translation>تعذّرت كتابة ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>The document %1 cannot be copied to %2: %3.</source>
            <translation>تعذّر نسخ المستند ⁨%1⁩ إلى ⁨%2⁩: %3.</translation>
        </message>
        <message>
            <source>The job was canceled. Nothing was printed.</source>
            <translation>أُلغيت المهمة. لم يُطبع شيء.</translation>
        </message>
        <message>
            <source>The print server cannot carry an option of the name “%1”.</source>
            <translation>لا يقبل خادم الطباعة خيارًا باسم «⁨%1⁩».</translation>
        </message>
        <message>
            <source>The print server cannot carry the value %1 of the option %2; choose another one.</source>
            <translation>لا يقبل خادم الطباعة القيمة ⁨%1⁩ للخيار ⁨%2⁩؛ اختر قيمة أخرى.</translation>
        </message>
        <message>
            <source>“%1” is no page or range of pages. Write for example 1-3, 8.</source>
            <translation>‏«⁨%1⁩» ليس صفحة ولا نطاق صفحات. اكتب مثلًا ⁦1-3، 8⁩.</translation>
        </message>
        <message>
            <source>Pages are counted from 1.</source>
            <translation>يبدأ ترقيم الصفحات من 1.</translation>
        </message>
        <message>
            <source>The range %1 runs backwards. Write %2-%3.</source>
            <translation>النطاق ⁨%1⁩ معكوس. اكتب ⁦%2-%3⁩.</translation>
        </message>
        <message>
            <source>Enter the pages to print, for example 1-3, 8.</source>
            <translation>أدخل الصفحات المطلوب طباعتها، مثل ⁦1-3، 8⁩.</translation>
        </message>
        <message>
            <source>There is no document to print.</source>
            <translation>لا يوجد مستند للطباعة.</translation>
        </message>
        <message>
            <source>The document %1 is not there.</source>
            <translation>المستند ⁨%1⁩ غير موجود.</translation>
        </message>
        <message>
            <source>%1 is no document but a folder or a device.</source>
            <translation>‏⁨%1⁩ ليس مستندًا بل مجلد أو جهاز.</translation>
        </message>
        <message>
            <source>The document %1 cannot be read: %2.</source>
            <translation>تعذّرت قراءة المستند ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>The document %1 is empty.</source>
            <translation>المستند ⁨%1⁩ فارغ.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document. Print the documents one by one, or all of their pages.</source>
            <translation>نطاق الصفحات لا يصلح إلا لمستند واحد. اطبع المستندات واحدًا واحدًا، أو اطبع كل صفحاتها.</translation>
        </message>
        <message>
            <source>%1 has 1 page; there is no page %2.</source>
            <translation>في ⁨%1⁩ صفحة واحدة فقط؛ لا توجد الصفحة %2.</translation>
        </message>
        <message>
            <source>%1 has %2 pages; there is no page %3.</source>
            <translation>عدد صفحات ⁨%1⁩ هو %2؛ لا توجد الصفحة %3.</translation>
        </message>
        <message>
            <source>The options cannot be kept.</source>
            <translation>تعذّر حفظ الخيارات.</translation>
        </message>
        <message>
            <source>The options do not let this job be printed.</source>
            <translation>لا تسمح الخيارات بطباعة هذه المهمة.</translation>
        </message>
        <message>
            <source>The printer %1 refused the job: %2.</source>
            <translation>رفضت الطابعة ⁨%1⁩ المهمة: %2.</translation>
        </message>
        <message>
            <source>the document</source>
            <translation>المستند</translation>
        </message>
        <message>
            <source>Nothing was printed.</source>
            <translation>لم يُطبع شيء.</translation>
        </message>
        <message>
            <source>The print server gave the job no number.</source>
            <translation>لم يعطِ خادم الطباعة رقمًا للمهمة.</translation>
        </message>
        <message>
            <source>Look whether it was printed before printing again.</source>
            <translation>قبل إعادة الطباعة، تحقق من أن المهمة لم تُطبع.</translation>
        </message>
        <message>
            <source>The job was stopped, but the print server did not confirm that it is canceled.</source>
            <translation>أُوقفت المهمة، لكن خادم الطباعة لم يؤكد إلغاءها.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost before all of %1 was sent.</source>
            <translation>انقطع الاتصال بخادم الطباعة قبل اكتمال إرسال ⁨%1⁩.</translation>
        </message>
        <message>
            <source>The connection to the print server was lost, and %1 was not printed; print again.</source>
            <translation>انقطع الاتصال بخادم الطباعة ولم يُطبع ⁨%1⁩؛ أعد الطباعة.</translation>
        </message>
        <message>
            <source>The print server took the document but did not confirm it.</source>
            <translation>تلقّى خادم الطباعة المستند لكنه لم يؤكد استلامه.</translation>
        </message>
        <message>
            <source>The job was canceled; print again.</source>
            <translation>أُلغيت المهمة؛ أعد الطباعة.</translation>
        </message>
        <message>
            <source>The print server did not confirm the job. Look whether it was printed before printing again.</source>
            <translation>لم يؤكد خادم الطباعة المهمة. قبل إعادة الطباعة، تحقق من أن المهمة لم تُطبع.</translation>
        </message>
        <message>
            <source>The document has more than %1.</source>
            <translation>حجم المستند أكبر من %1.</translation>
        </message>
        <message>
            <source>The document cannot be kept in %1: %2.</source>
            <translation>تعذّر حفظ المستند في ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>What the program wants to print is no file.</source>
            <translation>ما يريد البرنامج طباعته ليس ملفًا.</translation>
        </message>
        <message>
            <source>The document cannot be read: %1.</source>
            <translation>تعذّرت قراءة المستند: %1.</translation>
        </message>
        <message>
            <source>The document is empty.</source>
            <translation>المستند فارغ.</translation>
        </message>
        <message>
            <source>A preset needs a name.</source>
            <translation>يجب تسمية الإعداد المسبق.</translation>
        </message>
        <message>
            <source>The name of a preset has at most %1 characters.</source>
            <translation>الحد الأقصى لأحرف اسم الإعداد المسبق: %1.</translation>
        </message>
        <message>
            <source>The name of a preset is one line of text.</source>
            <translation>يجب أن يكون اسم الإعداد المسبق سطرًا واحدًا.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2</source>
            <translation>تعذّر استخدام %1: %2</translation>
        </message>
        <message>
            <source>It is no JSON object, as presets are.</source>
            <translation>ليس كائن JSON كسائر الإعدادات المسبقة.</translation>
        </message>
        <message>
            <source>It is no preset of this dialog.</source>
            <translation>ليس إعدادًا مسبقًا لهذا البرنامج.</translation>
        </message>
        <message>
            <source>It was made by a newer version of this dialog. Have that installed to use it.</source>
            <translation>أُنشئ بإصدار أحدث من هذا البرنامج. ثبّت ذلك الإصدار لاستخدامه.</translation>
        </message>
        <message>
            <source>Its name or its options are missing.</source>
            <translation>ينقصه الاسم أو الخيارات.</translation>
        </message>
        <message>
            <source>The preset %1</source>
            <translation>الإعداد المسبق ⁨%1⁩</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>الا&amp;سم:</translation>
        </message>
        <message>
            <source>Check that its folder can be written and that the disk has room.</source>
            <translation>تحقق من أن الكتابة في مجلده ممكنة وأن على القرص مساحة كافية.</translation>
        </message>
        <message>
            <source>%1: this printer has no such setting.</source>
            <translation>%1: لا يوجد هذا الإعداد في هذه الطابعة.</translation>
        </message>
        <message>
            <source>%1: this printer does not offer “%2”.</source>
            <translation>%1: لا تتيح هذه الطابعة «%2».</translation>
        </message>
        <message>
            <source>%1: the saved choice is not there any more.</source>
            <translation>%1: الاختيار المحفوظ لم يعد موجودًا.</translation>
        </message>
        <message>
            <source>It is protected by a password.</source>
            <translation>محمي بكلمة مرور.</translation>
        </message>
        <message>
            <source>It takes too long to draw.</source>
            <translation>يستغرق رسمه وقتًا طويلًا.</translation>
        </message>
        <message>
            <source>It cannot be read and may be damaged.</source>
            <translation>تعذّرت قراءته وربما كان تالفًا.</translation>
        </message>
        <message>
            <source>%1, %2</source>
            <translation>%1، %2</translation>
        </message>
        <message>
            <source>No preview of documents of this kind.</source>
            <translation>لا تتوفر معاينة لهذا النوع من المستندات.</translation>
        </message>
        <message>
            <source>No preview</source>
            <translation>المعاينة غير متاحة</translation>
        </message>
        <message>
            <source>%1 (%2)</source>
            <comment>description and name of a printer</comment>
            <translation>%1 (%2)</translation>
        </message>
        <message>
            <source>takes no jobs: choose another printer</source>
            <translation>لا تقبل المهام: اختر طابعة أخرى</translation>
        </message>
        <message>
            <source>stopped: jobs wait until somebody resumes it</source>
            <translation>متوقفة: تنتظر المهام حتى تُستأنف</translation>
        </message>
        <message>
            <source> · </source>
            <translation> · </translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment. Choose another one, or ask who looks after it.</source>
            <translation>لا تقبل هذه الطابعة المهام حاليًا. اختر طابعة أخرى، أو راجع المسؤول عنها.</translation>
        </message>
        <message>
            <source>This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.</source>
            <translation>لا تقبل هذه الطابعة المهام حاليًا (⁨%1⁩). اختر طابعة أخرى، أو راجع المسؤول عنها.</translation>
        </message>
        <message>
            <source>%1 cannot be read: %2.</source>
            <translation>تعذّرت قراءة ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>%1 is larger than %2.</source>
            <translation>حجم ⁨%1⁩ أكبر من %2.</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 م.ب</translation>
        </message>
        <message>
            <source>%1 is no file.</source>
            <translation>‏⁨%1⁩ ليس ملفًا.</translation>
        </message>
        <message>
            <source>%1 is damaged or cut off.</source>
            <translation>‏⁨%1⁩ تالف أو غير مكتمل.</translation>
        </message>
        <message>
            <source>a quoted value</source>
            <translation>قيمة بين علامتي اقتباس</translation>
        </message>
        <message>
            <source>The print server does not tell its printers: %1. Try again later.</source>
            <translation>تعذّر الحصول على قائمة الطابعات من خادم الطباعة: %1. أعد المحاولة لاحقًا.</translation>
        </message>
        <message>
            <source>The print server %1 does not answer; check that it is running.</source>
            <translation>لا يستجيب خادم الطباعة ⁨%1⁩؛ تحقق من أنه يعمل.</translation>
        </message>
        <message>
            <source>The file of your defaults, %1, cannot be read.</source>
            <translation>تعذّرت قراءة ملف إعداداتك الافتراضية، ⁨%1⁩.</translation>
        </message>
        <message>
            <source>Your defaults could not be written: %1: %2.</source>
            <translation>تعذّر حفظ إعداداتك الافتراضية: ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>نسخ</translation>
        </message>
        <message>
            <source>%1 tells what is built into the printer; no job can choose it.</source>
            <translation>يذكر %1 ما هو مركب في الطابعة؛ ولا يمكن لأي مهمة أن تختاره.</translation>
        </message>
        <message>
            <source>%1 cannot be “%2”; it takes %3.</source>
            <translation>لا يمكن أن يكون %1 «%2»؛ القيم المقبولة: %3.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. bvprint --list shows all.</source>
            <translation>ليس لهذه الطابعة خيار «%1». يعرض bvprint --list جميع الخيارات.</translation>
        </message>
        <message>
            <source>This printer has no option “%1”. Did you mean %2? bvprint --list shows all.</source>
            <translation>ليس لهذه الطابعة خيار «%1». هل تقصد %2؟ يعرض bvprint --list جميع الخيارات.</translation>
        </message>
        <message>
            <source>bvprint --list shows all choices.</source>
            <translation>يعرض bvprint --list جميع الاختيارات.</translation>
        </message>
        <message>
            <source>Choose one of: %1</source>
            <translation>اختر واحدًا من: %1</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <comment>conflicts</comment>
            <translation>وعدد البقية: %1.</translation>
        </message>
        <message>
            <source>Settled.</source>
            <comment>conflicts</comment>
            <translation>حُلّ التعارض.</translation>
        </message>
        <message>
            <source>&amp;My Defaults</source>
            <translation>ا&amp;فتراضياتي</translation>
        </message>
        <message>
            <source>Use the present choices for other programs and later jobs as well</source>
            <translation>استخدام الاختيارات الحالية في البرامج الأخرى والمهام اللاحقة أيضًا</translation>
        </message>
        <message>
            <source>Use for &amp;All My Printing</source>
            <translation>استخدامها في &amp;كل ما أطبعه</translation>
        </message>
        <message>
            <source>Store under a &amp;Name…</source>
            <translation>حفظ با&amp;سم…</translation>
        </message>
        <message>
            <source>&amp;Take Back</source>
            <translation>&amp;تراجع</translation>
        </message>
        <message>
            <source>Your programs now print on “%1” with these choices, unless they choose otherwise.</source>
            <translation>أصبحت برامجك تطبع على «%1» بهذه الاختيارات، ما لم يُحدَّد فيها غيرها.</translation>
        </message>
        <message>
            <source>Store under a Name</source>
            <translation>حفظ باسم</translation>
        </message>
        <message>
            <source>&amp;Name, for example “Draft”:</source>
            <translation>الا&amp;سم، مثل «مسودة»:</translation>
        </message>
        <message>
            <source>These choices can now be used as “%1”, by this dialog and other programs.</source>
            <translation>يمكن الآن استخدام هذه الاختيارات باسم «%1» في هذه النافذة والبرامج الأخرى.</translation>
        </message>
        <message>
            <source>Your defaults of “%1” are again what they were. The choices shown here stay.</source>
            <translation>عادت إعداداتك الافتراضية للطابعة «%1» كما كانت. لم تتغير الاختيارات المعروضة هنا.</translation>
        </message>
        <message>
            <source>Waiting for “%1” to answer…</source>
            <translation>في انتظار رد «%1»…</translation>
        </message>
        <message>
            <source>S&amp;kip</source>
            <translation>تخط&amp;ي</translation>
        </message>
        <message>
            <source>The printer did not answer. None of its profiles are known.</source>
            <translation>لم تستجب الطابعة. لا يُعرف أيٌّ من ملفات التعريف فيها.</translation>
        </message>
        <message>
            <source>The printer did not answer. Its profiles are shown as of %1, %2.</source>
            <comment>date and time</comment>
            <translation>لم تستجب الطابعة. ملفات التعريف معروضة كما كانت في ⁨%1⁩، ⁨%2⁩.</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <comment>a date in the notation of QLocale</comment>
            <translation>d MMMM</translation>
        </message>
        <message>
            <source>Standard input is no document here: the commands come from it.</source>
            <translation>لا يمكن استخدام الإدخال القياسي مستندًا هنا: فمنه تأتي الأوامر.</translation>
        </message>
        <message>
            <source>Standard input can be printed only once.</source>
            <translation>لا يمكن طباعة الإدخال القياسي إلا مرة واحدة.</translation>
        </message>
        <message>
            <source>standard input</source>
            <translation>الإدخال القياسي</translation>
        </message>
        <message>
            <source>Standard input cannot be kept in %1: %2.</source>
            <translation>تعذّر حفظ الإدخال القياسي في ⁨%1⁩: %2.</translation>
        </message>
        <message>
            <source>Standard input cannot be read: %1.</source>
            <translation>تعذّرت قراءة الإدخال القياسي: %1.</translation>
        </message>
        <message>
            <source>Drop files here, or choose Add.</source>
            <translation>أفلت الملفات هنا أو اختر «إضافة».</translation>
        </message>
        <message>
            <source>“%1” was not found.</source>
            <translation>لم يُعثر على «⁨%1⁩».</translation>
        </message>
        <message>
            <source>“%1” is a folder. Add the files in it.</source>
            <translation>‏«⁨%1⁩» مجلد. أضف الملفات التي فيه.</translation>
        </message>
        <message>
            <source>“%1” cannot be read. Ask its owner for leave to read it.</source>
            <translation>تعذّرت قراءة «⁨%1⁩». اطلب من صاحبه السماح لك بقراءته.</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>إ&amp;ضافة…</translation>
        </message>
        <message>
            <source>Remo&amp;ve</source>
            <translation>إ&amp;زالة</translation>
        </message>
        <message>
            <source>Documents</source>
            <translation>المستندات</translation>
        </message>
        <message>
            <source>Alt+Up and Alt+Down move the selected documents, Delete takes them out</source>
            <translation>اضغط ⁦Alt+↑⁩ أو ⁦Alt+↓⁩ لنقل المستندات المحددة، وDelete لإزالتها</translation>
        </message>
        <message>
            <source>Choose files to print (Ctrl+O)</source>
            <translation>اختيار ملفات للطباعة (Ctrl+O)</translation>
        </message>
        <message>
            <source>“%1” is in the list already.</source>
            <translation>‏«⁨%1⁩» موجود في القائمة بالفعل.</translation>
        </message>
        <message>
            <source>Only files of this computer can be printed. Save the document here first.</source>
            <translation>لا يمكن طباعة سوى الملفات الموجودة على هذا الحاسوب. احفظ المستند هنا أولًا.</translation>
        </message>
        <message>
            <source>Add Documents</source>
            <translation>إضافة مستندات</translation>
        </message>
        <message>
            <source>&amp;Documents (%1, %2):</source>
            <comment>number and size</comment>
            <translation>المس&amp;تندات (%1، ⁨%2⁩):</translation>
        </message>
        <message>
            <source>&amp;Documents:</source>
            <translation>المس&amp;تندات:</translation>
        </message>
        <message>
            <source>Take the selected documents out of the job; the files themselves stay</source>
            <translation>إزالة المستندات المحددة من المهمة؛ لا تُحذف الملفات نفسها</translation>
        </message>
        <message>
            <source>Select the documents to take out first</source>
            <translation>حدد أولًا المستندات المطلوب إزالتها</translation>
        </message>
        <message>
            <source>The document %1</source>
            <translation>المستند ⁨%1⁩</translation>
        </message>
        <message>
            <source>The document %1 became shorter while it was being sent.</source>
            <translation>نقص حجم المستند ⁨%1⁩ أثناء إرساله.</translation>
        </message>
        <message>
            <source>The folder %1 cannot be made.</source>
            <translation>تعذّر إنشاء المجلد ⁨%1⁩.</translation>
        </message>
        <message>
            <source>The job was written to %1.</source>
            <translation>كُتبت المهمة في ⁨%1⁩.</translation>
        </message>
        <message>
            <source>A range of pages belongs to one document, and this job has %1. Print all of their pages.</source>
            <translation>نطاق الصفحات لا يصلح إلا لمستند واحد، وعدد مستندات هذه المهمة: %1. اطبع كل صفحاتها.</translation>
        </message>
        <message>
            <source>Nothing was printed. Job %1 stays held.</source>
            <translation>لم يُطبع شيء. تبقى المهمة %1 معلّقة.</translation>
        </message>
        <message>
            <source>The print server did not confirm that job %1 is released. Look at the printer's jobs before printing again.</source>
            <translation>لم يؤكد خادم الطباعة تحرير المهمة %1. راجع مهام الطابعة قبل إعادة الطباعة.</translation>
        </message>
        <message>
            <source>Job %1: %2</source>
            <translation>المهمة %1: ⁨%2⁩</translation>
        </message>
        <message>
            <source>%1 documents</source>
            <translation>عدد المستندات: %1</translation>
        </message>
        <message>
            <source>Sent %1. It is held until you print or cancel it.</source>
            <translation>أُرسلت في ⁨%1⁩. تبقى معلّقة حتى تطبعها أو تلغيها.</translation>
        </message>
        <message>
            <source>Ca&amp;ncel Job</source>
            <translation>إلغاء الم&amp;همة</translation>
        </message>
        <message>
            <source>Print – %1</source>
            <translation>طباعة – ⁨%1⁩</translation>
        </message>
        <message>
            <source>Document in the preview</source>
            <translation>المستند في المعاينة</translation>
        </message>
        <message>
            <source>Remove the job from the printer without printing it</source>
            <translation>إزالة المهمة من الطابعة دون طباعتها</translation>
        </message>
        <message>
            <source>&amp;Decide Later</source>
            <translation>&amp;القرار لاحقًا</translation>
        </message>
        <message>
            <source>Close this window. The job stays held until you print or cancel it.</source>
            <translation>إغلاق هذه النافذة. تبقى المهمة معلّقة حتى تطبعها أو تلغيها.</translation>
        </message>
        <message>
            <source>A&amp;ll pages</source>
            <translation>&amp;كل الصفحات</translation>
        </message>
        <message>
            <source>Pa&amp;ges:</source>
            <translation>ال&amp;صفحات:</translation>
        </message>
        <message>
            <source>1-3, 8</source>
            <translation>‎1-3، 8</translation>
        </message>
        <message>
            <source>Cop&amp;ies:</source>
            <translation>ال&amp;نسخ:</translation>
        </message>
        <message>
            <source>Pages and ranges between commas, for example 1-3, 8, 12-</source>
            <translation>صفحات ونطاقات تفصل بينها فواصل، مثل ⁦1-3، 8، 12-⁩</translation>
        </message>
        <message>
            <source>The documents cannot be read: their disk does not answer.</source>
            <translation>تعذّرت قراءة المستندات: القرص الذي يحويها لا يستجيب.</translation>
        </message>
        <message>
            <source>Make room on the disk, or ask your administrator whether you may still write the lists</source>
            <translation>أفرغ مساحة على القرص، أو اسأل مسؤول النظام هل لا يزال مسموحًا لك بكتابة القوائم</translation>
        </message>
        <message>
            <source>Your changes to the profiles were not saved: their list could not be written. %1; then make the changes again.</source>
            <translation>لم تُحفظ تغييراتك في ملفات التعريف لتعذّر كتابة قائمتها. %1؛ ثم أعد إجراء التغييرات.</translation>
        </message>
        <message>
            <source>What the printer says of its profiles was not saved: their list could not be written. The profiles are shown as they were. %1; then open this window again.</source>
            <translation>لم يُحفظ ما أبلغت به الطابعة عن ملفات التعريف فيها لتعذّر كتابة قائمتها. ملفات التعريف معروضة كما كانت. %1؛ ثم أعد فتح هذه النافذة.</translation>
        </message>
        <message>
            <source>Another choice does not let it stand.</source>
            <translation>لا يسمح به خيار آخر.</translation>
        </message>
        <message>
            <source>Close this message</source>
            <translation>إغلاق هذه الرسالة</translation>
        </message>
        <message>
            <source>Show All</source>
            <translation>إظهار الكل</translation>
        </message>
        <message>
            <source>Show Less</source>
            <translation>إظهار أقل</translation>
        </message>
        <message>
            <source>and %1 more</source>
            <translation>وعدد البقية: %1</translation>
        </message>
        <message>
            <source>More Options – %1</source>
            <translation>خيارات أخرى – ⁨%1⁩</translation>
        </message>
        <message>
            <source>%1:</source>
            <comment>an option</comment>
            <translation>%1:</translation>
        </message>
        <message>
            <source>Restore De&amp;faults</source>
            <translation>استعادة الافت&amp;راضيات</translation>
        </message>
        <message>
            <source>Preview (&amp;1)</source>
            <translation>معاينة (&amp;1)</translation>
        </message>
        <message>
            <source>Page Up and Page Down turn the pages, Home and End go to the first and the last one.</source>
            <translation>اضغط Page Up وPage Down لتقليب الصفحات، وHome وEnd للانتقال إلى أول صفحة وآخر صفحة.</translation>
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
            <source>Page in the preview</source>
            <translation>الصفحة في المعاينة</translation>
        </message>
        <message>
            <source>Pag&amp;e</source>
            <translation>صف&amp;حة</translation>
        </message>
        <message>
            <source>Add a document to see its pages.</source>
            <translation>أضف مستندًا لترى صفحاته.</translation>
        </message>
        <message>
            <source>None of the chosen pages is in this document.</source>
            <translation>لا توجد أيٌّ من الصفحات المختارة في هذا المستند.</translation>
        </message>
        <message>
            <source>This is the first page.</source>
            <translation>هذه هي الصفحة الأولى.</translation>
        </message>
        <message>
            <source>This is the last page.</source>
            <translation>هذه هي الصفحة الأخيرة.</translation>
        </message>
        <message>
            <source>There are no pages to choose from.</source>
            <translation>لا توجد صفحات للاختيار منها.</translation>
        </message>
        <message>
            <source>of %1</source>
            <comment>pages of a document</comment>
            <translation>من %1</translation>
        </message>
        <message>
            <source>Show the pages that will be printed</source>
            <translation>إظهار الصفحات التي ستُطبع</translation>
        </message>
        <message>
            <source>Fold the preview away</source>
            <translation>طي المعاينة</translation>
        </message>
        <message>
            <source>%1 of %2</source>
            <comment>document</comment>
            <translation>%1 من %2</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>معاينة</translation>
        </message>
        <message>
            <source>Preview of %1</source>
            <translation>معاينة ⁨%1⁩</translation>
        </message>
        <message>
            <source>Preview of %1: %2</source>
            <translation>معاينة ⁨%1⁩: %2</translation>
        </message>
        <message>
            <source>Preview, page %1 of %2 of %3</source>
            <translation>معاينة ⁨%3⁩، الصفحة %1 من %2</translation>
        </message>
        <message>
            <source>The options of this printer cannot be shown: the plug-in gives no view. Install it anew.</source>
            <translation>تعذّر عرض خيارات هذه الطابعة: المكوّن الإضافي لا يعرض شيئًا. أعد تثبيته.</translation>
        </message>
        <message>
            <source>Not all of the choices could be restored. Look them through.</source>
            <translation>تعذّرت استعادة بعض الاختيارات. راجعها.</translation>
        </message>
        <message>
            <source>%1 is there already and is not ours. Remove it, then try again.</source>
            <translation>الملف ⁨%1⁩ موجود من قبل ولا يخص هذا البرنامج. احذفه ثم أعد المحاولة.</translation>
        </message>
        <message>
            <source>This system's portal goes by files such as %1. Copy the one for your desktop to ~/.config/xdg-desktop-portal, and add this line to its part [preferred]:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</source>
            <translation>تعتمد بوابة سطح المكتب في هذا النظام على ملفات مثل ⁨%1⁩. انسخ الملف الخاص بسطح مكتبك إلى ⁦~/.config/xdg-desktop-portal⁩، وأضف هذا السطر إلى قسمه ⁦[preferred]⁩:
org.freedesktop.impl.portal.Print=vnd.brevane.bvprint</translation>
        </message>
        <message>
            <source>The desktop portal is not installed. Install the package xdg-desktop-portal.</source>
            <translation>بوابة سطح المكتب غير مثبتة. ثبّت الحزمة xdg-desktop-portal.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show this dialog from your next login on.</source>
            <translation>ستعرض البرامج التي تطبع عبر البوابة هذه النافذة بدءًا من تسجيل دخولك القادم.</translation>
        </message>
        <message>
            <source>It is off already.</source>
            <translation>هذه الميزة متوقفة بالفعل.</translation>
        </message>
        <message>
            <source>%1 cannot be removed.</source>
            <translation>تعذّر حذف ⁨%1⁩.</translation>
        </message>
        <message>
            <source>Programs that print through the portal show the desktop's own dialog from your next login on.</source>
            <translation>ستعرض البرامج التي تطبع عبر البوابة نافذة سطح المكتب نفسه بدءًا من تسجيل دخولك القادم.</translation>
        </message>
        <message>
            <source>%1 cannot be used: %2, line %3.</source>
            <translation>تعذّر استخدام ⁨%1⁩: %2، السطر %3.</translation>
        </message>
        <message>
            <source>%1 is cut off: %2 is not closed.</source>
            <translation>‏⁨%1⁩ غير مكتمل: نهاية ⁨%2⁩ مفقودة.</translation>
        </message>
        <message>
            <source>Paper si&amp;ze:</source>
            <translation>م&amp;قاس الورق:</translation>
        </message>
        <message>
            <source>Paper size</source>
            <translation>مقاس الورق</translation>
        </message>
        <message>
            <source>Paper t&amp;ype:</source>
            <translation>ن&amp;وع الورق:</translation>
        </message>
        <message>
            <source>Paper type</source>
            <translation>نوع الورق</translation>
        </message>
        <message>
            <source>&amp;Tray:</source>
            <translation>ال&amp;درج:</translation>
        </message>
        <message>
            <source>Tray</source>
            <translation>الدرج</translation>
        </message>
        <message>
            <source>T&amp;wo-sided:</source>
            <translation>على الو&amp;جهين:</translation>
        </message>
        <message>
            <source>Two-sided</source>
            <translation>على الوجهين</translation>
        </message>
        <message>
            <source>Resolutio&amp;n:</source>
            <translation>ا&amp;لدقة:</translation>
        </message>
        <message>
            <source>Resolution</source>
            <translation>الدقة</translation>
        </message>
        <message>
            <source>General settings</source>
            <translation>الإعدادات العامة</translation>
        </message>
        <message>
            <source>M&amp;ore Options…</source>
            <translation>&amp;خيارات أخرى…</translation>
        </message>
        <message>
            <source>M&amp;ore Options (%1 changed)…</source>
            <translation>&amp;خيارات أخرى (تغيّر منها %1)…</translation>
        </message>
        <message>
            <source>All other options of this printer</source>
            <translation>كل الخيارات الأخرى لهذه الطابعة</translation>
        </message>
        <message>
            <source>The PPD %1</source>
            <translation>ملف PPD ⁨%1⁩</translation>
        </message>
        <message>
            <source>Printer's defaults</source>
            <translation>افتراضيات الطابعة</translation>
        </message>
        <message>
            <source>Presets (*.json)</source>
            <translation>إعدادات مسبقة (*.json)</translation>
        </message>
        <message>
            <source>“%1”</source>
            <comment>a preset</comment>
            <translation>«⁨%1⁩»</translation>
        </message>
        <message>
            <source>The Printer's &amp;Defaults</source>
            <translation>ا&amp;فتراضيات الطابعة</translation>
        </message>
        <message>
            <source>As &amp;Last Time</source>
            <translation>كالمرة ال&amp;سابقة</translation>
        </message>
        <message>
            <source>&amp;Save as Preset…</source>
            <translation>&amp;حفظ كإعداد مسبق…</translation>
        </message>
        <message>
            <source>%1…</source>
            <comment>a preset</comment>
            <translation>%1…</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>إعادة &amp;تسمية</translation>
        </message>
        <message>
            <source>D&amp;elete</source>
            <translation>ح&amp;ذف</translation>
        </message>
        <message>
            <source>E&amp;xport</source>
            <translation>ت&amp;صدير</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>استي&amp;راد…</translation>
        </message>
        <message>
            <source>As last time</source>
            <translation>كالمرة السابقة</translation>
        </message>
        <message>
            <source>As in your last job.</source>
            <translation>كما في مهمتك الأخيرة.</translation>
        </message>
        <message>
            <source>%1: all settings were so already.</source>
            <translation>%1: لم يتغير أي إعداد.</translation>
        </message>
        <message>
            <source>%1: one setting changed.</source>
            <translation>%1: تغيّر إعداد واحد.</translation>
        </message>
        <message>
            <source>%1: %2 settings changed.</source>
            <translation>%1: عدد الإعدادات التي تغيّرت %2.</translation>
        </message>
        <message>
            <source>Not used:</source>
            <translation>لم يُستخدم:</translation>
        </message>
        <message>
            <source>and %1 more.</source>
            <translation>وعدد البقية: %1.</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1, changed</source>
            <translation>الإعداد الم&amp;سبق: %1 (معدَّل)</translation>
        </message>
        <message>
            <source>Pre&amp;set: %1</source>
            <translation>الإعداد الم&amp;سبق: %1</translation>
        </message>
        <message>
            <source>Start from the printer's defaults, from the last job or from choices that you saved</source>
            <translation>البدء بالإعدادات الافتراضية للطابعة أو بآخر مهمة أو باختيارات حفظتها</translation>
        </message>
        <message>
            <source>Save as Preset</source>
            <translation>حفظ كإعداد مسبق</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Replace it?</source>
            <translation>يوجد إعداد مسبق باسم «⁨%1⁩» بالفعل. أتريد استبداله؟</translation>
        </message>
        <message>
            <source>&amp;Replace</source>
            <translation>ا&amp;ستبدال</translation>
        </message>
        <message>
            <source>The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.</source>
            <translation>حُفظت الاختيارات باسم «⁨%1⁩» للطابعة «%2». أما النسخ والصفحات فتُحدَّد لكل مهمة.</translation>
        </message>
        <message>
            <source>Rename Preset</source>
            <translation>إعادة تسمية الإعداد المسبق</translation>
        </message>
        <message>
            <source>The preset “%1” is called “%2” now.</source>
            <translation>أصبح اسم الإعداد المسبق «⁨%1⁩» الآن «⁨%2⁩».</translation>
        </message>
        <message>
            <source>Delete Preset</source>
            <translation>حذف الإعداد المسبق</translation>
        </message>
        <message>
            <source>Delete the preset “%1” of “%2”? What is chosen now stays.</source>
            <translation>أتريد حذف الإعداد المسبق «⁨%1⁩» للطابعة «%2»؟ لن يتغير ما اخترته الآن.</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>ح&amp;ذف</translation>
        </message>
        <message>
            <source>Choices of “%1”</source>
            <translation>اختيارات «⁨%1⁩»</translation>
        </message>
        <message>
            <source>The preset “%1” is deleted.</source>
            <translation>حُذف الإعداد المسبق «⁨%1⁩».</translation>
        </message>
        <message>
            <source>Export Preset</source>
            <translation>تصدير الإعداد المسبق</translation>
        </message>
        <message>
            <source>The preset “%1” is exported to %2.</source>
            <translation>صُدِّر الإعداد المسبق «⁨%1⁩» إلى ⁨%2⁩.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be exported: %2: %3. Export it to a folder that you may write.</source>
            <translation>تعذّر تصدير الإعداد المسبق «⁨%1⁩»: ⁨%2⁩: %3. صدّره إلى مجلد يُسمح لك بالكتابة فيه.</translation>
        </message>
        <message>
            <source>Import Preset</source>
            <translation>استيراد إعداد مسبق</translation>
        </message>
        <message>
            <source>;;All files (*)</source>
            <translation>;;كل الملفات (*)</translation>
        </message>
        <message>
            <source>Choose a file that was exported as a preset.</source>
            <translation>اختر ملفًا صُدِّر كإعداد مسبق.</translation>
        </message>
        <message>
            <source>%1 is imported and used</source>
            <comment>a preset</comment>
            <translation>استُورد %1 وطُبِّق</translation>
        </message>
        <message>
            <source>%1 is imported and used as %2, since there is one of that name</source>
            <translation>استُورد %1 وطُبِّق باسم %2، لوجود إعداد مسبق بالاسم نفسه</translation>
        </message>
        <message>
            <source>There is no preset “%1” for the printer “%2”.</source>
            <translation>لا يوجد إعداد مسبق باسم «⁨%1⁩» للطابعة «%2».</translation>
        </message>
        <message>
            <source>The preset “%1” could not be saved: %2: %3. %4</source>
            <translation>تعذّر حفظ الإعداد المسبق «⁨%1⁩»: ⁨%2⁩: %3. %4</translation>
        </message>
        <message>
            <source>There is a preset “%1” already. Choose another name, or delete it first.</source>
            <translation>يوجد إعداد مسبق باسم «⁨%1⁩» بالفعل. اختر اسمًا آخر أو احذفه أولًا.</translation>
        </message>
        <message>
            <source>The preset “%1” could not be renamed: %2: %3. %4</source>
            <translation>تعذّرت إعادة تسمية الإعداد المسبق «⁨%1⁩»: ⁨%2⁩: %3. %4</translation>
        </message>
        <message>
            <source>The preset “%1” could not be deleted: %2: %3. %4</source>
            <translation>تعذّر حذف الإعداد المسبق «⁨%1⁩»: ⁨%2⁩: %3. %4</translation>
        </message>
        <message>
            <source>Looking for printers…</source>
            <translation>جارٍ البحث عن طابعات…</translation>
        </message>
        <message>
            <source>There is no printer. Add one in the system's printer settings, then look again.</source>
            <translation>لا توجد طابعة. أضف واحدة من إعدادات الطابعات في النظام، ثم أعد البحث.</translation>
        </message>
        <message>
            <source>Look &amp;Again</source>
            <translation>إعادة البح&amp;ث</translation>
        </message>
        <message>
            <source>There is no printer “%1”. Choose one from the list.</source>
            <translation>لا توجد طابعة باسم «⁨%1⁩». اختر طابعة من القائمة.</translation>
        </message>
        <message>
            <source>The options of “%1” are being prepared…</source>
            <translation>جارٍ تجهيز خيارات «%1»…</translation>
        </message>
        <message>
            <source>Try &amp;Again</source>
            <translation>إعادة المحاول&amp;ة</translation>
        </message>
        <message>
            <source>This printer is stopped. You can print all the same: it keeps the job and prints it once it is resumed.</source>
            <translation>هذه الطابعة متوقفة. يمكنك الطباعة مع ذلك: ستحتفظ بالمهمة وتطبعها عند استئنافها.</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>طباعة</translation>
        </message>
        <message>
            <source>Print – %1 documents</source>
            <translation>طباعة – عدد المستندات: %1</translation>
        </message>
        <message>
            <source>The job is being sent…</source>
            <translation>جارٍ إرسال المهمة…</translation>
        </message>
        <message>
            <source>The printer's options are being prepared…</source>
            <translation>جارٍ تجهيز خيارات الطابعة…</translation>
        </message>
        <message>
            <source>Choose a printer first.</source>
            <translation>اختر طابعة أولًا.</translation>
        </message>
        <message>
            <source>This printer cannot be used. Choose another one.</source>
            <translation>لا يمكن استخدام هذه الطابعة. اختر طابعة أخرى.</translation>
        </message>
        <message>
            <source>This printer is no longer there. Choose another one.</source>
            <translation>لم تعد هذه الطابعة موجودة. اختر طابعة أخرى.</translation>
        </message>
        <message>
            <source>Add a document to print.</source>
            <translation>أضف مستندًا لطباعته.</translation>
        </message>
        <message>
            <source>Some choices do not go together, and the printer would not follow all of them:

%1

Cancel, and settle it by the buttons above Print, or print all the same.</source>
            <translation>بعض الاختيارات متعارضة، ولن تعمل الطابعة بها كلها:

%1

ألغِ الطباعة وحُلّ التعارض بالأزرار التي فوق «طباعة»، أو اطبع مع ذلك.</translation>
        </message>
        <message>
            <source>Print &amp;Anyway</source>
            <translation>&amp;طباعة مع ذلك</translation>
        </message>
        <message>
            <source>The job is being canceled…</source>
            <translation>جارٍ إلغاء المهمة…</translation>
        </message>
        <message>
            <source>As given</source>
            <translation>كما حُدِّدت</translation>
        </message>
        <message>
            <source>My defaults</source>
            <translation>افتراضياتي</translation>
        </message>
        <message>
            <source>As sent</source>
            <translation>كما أُرسلت</translation>
        </message>
        <message>
            <source>From the ticket that was given.</source>
            <translation>من بطاقة المهمة التي حُدِّدت.</translation>
        </message>
        <message>
            <source>Your own default.</source>
            <translation>من إعداداتك الافتراضية.</translation>
        </message>
        <message>
            <source>As the job was sent.</source>
            <translation>كما أُرسلت المهمة.</translation>
        </message>
        <message>
            <source>You have no defaults called “%1”. The printer's own are shown.</source>
            <translation>ليست لديك إعدادات افتراضية باسم «⁨%1⁩». المعروض هو الإعدادات الافتراضية للطابعة.</translation>
        </message>
        <message>
            <source>S&amp;ummary</source>
            <translation>&amp;ملخص</translation>
        </message>
        <message>
            <source>Put all of the printer's settings back to what its driver proposes</source>
            <translation>إعادة كل إعدادات الطابعة إلى ما يقترحه برنامج تشغيلها</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>إل&amp;غاء</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>&amp;طباعة</translation>
        </message>
        <message>
            <source>Print the documents with these settings</source>
            <translation>طباعة المستندات بهذه الإعدادات</translation>
        </message>
        <message>
            <source>There is no default printer; name one with --queue.</source>
            <translation>لا توجد طابعة افتراضية؛ حدد طابعة بالخيار ⁦--queue⁩.</translation>
        </message>
        <message>
            <source>The print server has no printer %1.</source>
            <translation>لا توجد الطابعة ⁨%1⁩ في خادم الطباعة.</translation>
        </message>
        <message>
            <source>The driver of the printer %1</source>
            <translation>برنامج تشغيل الطابعة ⁨%1⁩</translation>
        </message>
        <message>
            <source>The printer %1 has no driver. Add it again in the system's printer settings, with its driver.</source>
            <translation>ليس للطابعة ⁨%1⁩ برنامج تشغيل. أضفها من جديد مع برنامج تشغيلها من إعدادات الطابعات في النظام.</translation>
        </message>
        <message>
            <source>%1 cannot be had: %2</source>
            <translation>تعذّر الحصول على ⁨%1⁩: %2</translation>
        </message>
        <message>
            <source>Printers</source>
            <translation>الطابعات</translation>
        </message>
        <message>
            <source>Find by name, description or place</source>
            <translation>بحث بالاسم أو الوصف أو المكان</translation>
        </message>
        <message>
            <source>Find a printer by name, description or place</source>
            <translation>البحث عن طابعة بالاسم أو الوصف أو المكان</translation>
        </message>
        <message>
            <source>No printer has “%1” in its name, description or place. Try fewer letters.</source>
            <translation>لا توجد طابعة يتضمن اسمها أو وصفها أو مكانها «⁨%1⁩». جرّب عددًا أقل من الحروف.</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>الطابعة</translation>
        </message>
        <message>
            <source>P&amp;rinter:</source>
            <translation>الطا&amp;بعة:</translation>
        </message>
        <message>
            <source>No printer</source>
            <translation>لا توجد طابعة</translation>
        </message>
        <message>
            <source>%1: no color options</source>
            <translation>%1: بلا خيارات ألوان</translation>
        </message>
        <message>
            <source>“%1” has no color options: its driver does not offer any that this dialog knows. You can print with its other settings.</source>
            <translation>ليس للطابعة «%1» خيارات ألوان: برنامج تشغيلها لا يتيح خيارات ألوان يعرفها هذا البرنامج. يمكنك الطباعة بإعداداتها الأخرى.</translation>
        </message>
        <message>
            <source>“%1” has no color options: the plug-in offers none. Install it anew to have them.</source>
            <translation>ليس للطابعة «%1» خيارات ألوان: المكوّن الإضافي لا يتيح أيًّا منها. أعد تثبيته للحصول عليها.</translation>
        </message>
        <message>
            <source>The choices of “%1” could not be kept.</source>
            <translation>تعذّر حفظ اختيارات «%1».</translation>
        </message>
        <message>
            <source>Cancel &amp;Job</source>
            <translation>إلغاء الم&amp;همة</translation>
        </message>
        <message>
            <source>Progress of sending</source>
            <translation>تقدم الإرسال</translation>
        </message>
        <message>
            <source>Stop sending the job; the dialog stays as it is</source>
            <translation>إيقاف إرسال المهمة؛ تبقى هذه النافذة كما هي</translation>
        </message>
        <message>
            <source>Sending: %1 of %2</source>
            <translation>الإرسال: ⁨%1⁩ من ⁨%2⁩</translation>
        </message>
        <message>
            <source>Sending…</source>
            <translation>جارٍ الإرسال…</translation>
        </message>
        <message>
            <source>The print server %1 broke off its answer.</source>
            <translation>انقطع رد خادم الطباعة ⁨%1⁩ قبل اكتماله.</translation>
        </message>
        <message>
            <source>The document is too large.</source>
            <translation>المستند كبير جدًا.</translation>
        </message>
        <message>
            <source>The print server %1 gave an answer that cannot be read.</source>
            <translation>تعذّرت قراءة رد خادم الطباعة ⁨%1⁩.</translation>
        </message>
        <message>
            <source>The print server %1 does not let you in; ask who looks after it.</source>
            <translation>لا يسمح لك خادم الطباعة ⁨%1⁩ بالدخول؛ راجع المسؤول عنه.</translation>
        </message>
        <message>
            <source>The print server %1 refuses to answer: %2.</source>
            <translation>رفض خادم الطباعة ⁨%1⁩ الرد: %2.</translation>
        </message>
        <message>
            <source>Drawing the page…</source>
            <translation>جارٍ رسم الصفحة…</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>نعم</translation>
        </message>
        <message>
            <source>No</source>
            <translation>لا</translation>
        </message>
        <message>
            <source>Summary</source>
            <translation>ملخص</translation>
        </message>
        <message>
            <source>Setting</source>
            <translation>الإعداد</translation>
        </message>
        <message>
            <source>Choice</source>
            <translation>الاختيار</translation>
        </message>
        <message>
            <source>There is nothing to sum up.</source>
            <translation>لا يوجد ما يُعرض في الملخص.</translation>
        </message>
        <message>
            <source>All as the printer proposes.</source>
            <translation>كلها كما تقترح الطابعة.</translation>
        </message>
        <message>
            <source>“%1” cannot be the name of defaults: use letters, digits, “-”, “_” and “.” only.</source>
            <translation>لا يمكن تسمية إعدادات افتراضية باسم «⁨%1⁩»: استخدم الحروف والأرقام و«-» و«_» و«.» فقط، دون مسافات.</translation>
        </message>
        <message>
            <source>Your present defaults could not be kept, so they were not replaced.</source>
            <translation>تعذّر الاحتفاظ بإعداداتك الافتراضية الحالية، لذا لم تُستبدل.</translation>
        </message>
        <message>
            <source>There are no earlier defaults of “%1”.</source>
            <translation>لا توجد إعدادات افتراضية سابقة للطابعة «⁨%1⁩».</translation>
        </message>
        <message>
            <source>W&amp;hy Is It Gray?</source>
            <translation>لما&amp;ذا هذا غير متاح؟</translation>
        </message>
        <message>
            <source>Lists the controls that cannot be used now, and what makes them available</source>
            <translation>عرض العناصر التي لا يمكن استخدامها الآن وما يجعلها متاحة</translation>
        </message>
        <message>
            <source>Controls that cannot be used now</source>
            <translation>عناصر لا يمكن استخدامها الآن</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <comment>name of a control, why it is gray</comment>
            <translation>%1: %2</translation>
        </message>
    </context>
</TS>
