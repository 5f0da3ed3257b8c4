<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AttentionFilterButton</name>
    <message>
        <source>Show, filtered</source>
        <translation>عرض، مع تصفية</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
</context>
<context>
    <name>AttentionFilterScene</name>
    <message>
        <source>Reset</source>
        <translation>إعادة ضبط</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>تجميع حسب</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>الخطورة</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>وحدة التحكم</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>الأنواع</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>وحدات التحكم</translation>
    </message>
    <message>
        <source>Find a console</source>
        <translation>ابحث عن وحدة تحكم</translation>
    </message>
</context>
<context>
    <name>AttentionNowContent</name>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>لا توجد وحدات تحكم بعد.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>إضافة Corvel</translation>
    </message>
</context>
<context>
    <name>AttentionScene</name>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>التغييرات</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>الانتباه</translation>
    </message>
</context>
<context>
    <name>AttentionWatchButton</name>
    <message>
        <source>Watch</source>
        <translation>المراقبة</translation>
    </message>
</context>
<context>
    <name>ChangesCard</name>
    <message>
        <source>Worse, above</source>
        <translation>أسوأ، في الأعلى</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>أفضل، في الأسفل</translation>
    </message>
</context>
<context>
    <name>ChangesContent</name>
    <message>
        <source>Show all</source>
        <translation>عرض الكل</translation>
    </message>
</context>
<context>
    <name>ChosenLine</name>
    <message>
        <source>Show all</source>
        <translation>عرض الكل</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1 needs a value: %2.</source>
        <extracomment>%1 an option, %2 a word for what it takes</extracomment>
        <translation>يحتاج %1 إلى قيمة: %2.</translation>
    </message>
    <message>
        <source>Only this console, by name or address; may be repeated.</source>
        <translation>وحدة التحكم هذه فقط، باسمها أو عنوانها؛ يمكن تكراره.</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>اكتب JSON.</translation>
    </message>
    <message>
        <source>Write comma-separated values.</source>
        <translation>اكتب قيمًا مفصولة بفواصل.</translation>
    </message>
    <message>
        <source>Use this data folder instead of Lodestar&apos;s own.</source>
        <translation>استخدم مجلد البيانات هذا بدل مجلد Lodestar.</translation>
    </message>
    <message>
        <source>Say how the command is used.</source>
        <translation>اذكر كيف يُستخدم الأمر.</translation>
    </message>
    <message>
        <source>Say which version this is.</source>
        <translation>اذكر الإصدار.</translation>
    </message>
    <message>
        <source>%1 takes a number, not %2.</source>
        <extracomment>%1 an option, %2 what was given</extracomment>
        <translation>يأخذ %1 رقمًا، وليس %2.</translation>
    </message>
    <message>
        <source>%1 takes minutes, or a time as 30s or 2h, not %2.</source>
        <translation>يأخذ %1 دقائق، أو مدة مثل 30s أو 2h، وليس %2.</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>لا يوجد خيار %1.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>لا يأخذ %1 قيمة.</translation>
    </message>
    <message>
        <source>No command was given.</source>
        <translation>لم يُعط أي أمر.</translation>
    </message>
    <message>
        <source>There is no command %1.</source>
        <translation>لا يوجد أمر %1.</translation>
    </message>
    <message>
        <source>%1 takes no option %2.</source>
        <translation>ليس للأمر %1 خيار %2.</translation>
    </message>
    <message>
        <source>It is used so: %1</source>
        <translation>يُستخدم هكذا: %1</translation>
    </message>
    <message>
        <source>--json and --csv exclude one another.</source>
        <translation>لا يجتمع ‎--json و‎--csv.</translation>
    </message>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>يراقب وحدات تحكم Corvel ولا يغيّر شيئًا.</translation>
    </message>
    <message>
        <source>With every command:</source>
        <translation>مع كل أمر:</translation>
    </message>
    <message>
        <source>Ends with 0 when all is well, 1 after warnings, 2 after errors, and 3 when that is not known.</source>
        <translation>ينتهي بـ 0 إذا كان كل شيء جيدًا، و1 بعد تحذيرات، و2 بعد أخطاء، و3 إذا لم يُعرف ذلك.</translation>
    </message>
    <message>
        <source>Read passwords from descriptor N, one a line.</source>
        <translation>اقرأ كلمات المرور من الواصف N، واحدة في كل سطر.</translation>
    </message>
    <message>
        <source>Tell how all consoles are. The exit code says how the fleet is.</source>
        <translation>اذكر حال كل الوحدات. ويذكره رمز الخروج أيضًا.</translation>
    </message>
    <message>
        <source>List everything that needs attention. The exit code as with status.</source>
        <translation>اسرد كل ما يحتاج إلى انتباه. رمز الخروج كما في status.</translation>
    </message>
    <message>
        <source>List consoles, systems, io-servers, partitions, events or groups.</source>
        <translation>اسرد consoles أو systems أو io-servers أو partitions أو events أو groups.</translation>
    </message>
    <message>
        <source>Show every field as a column, not only the usual ones.</source>
        <translation>اعرض كل حقل كعمود، لا المعتادة فقط.</translation>
    </message>
    <message>
        <source>Show one object, by identifier, name or number.</source>
        <translation>اعرض كائنًا واحدًا، بمعرّفه أو اسمه أو رقمه.</translation>
    </message>
    <message>
        <source>List serviceable events.</source>
        <translation>اسرد أحداث الصيانة.</translation>
    </message>
    <message>
        <source>Only open ones.</source>
        <translation>المفتوحة فقط.</translation>
    </message>
    <message>
        <source>Only those that are reported to the maker.</source>
        <translation>التي يُبلغ بها الصانع فقط.</translation>
    </message>
    <message>
        <source>sent, newest (as at first), status or code.</source>
        <translation>‏sent أو newest (الافتراضي) أو status أو code.</translation>
    </message>
    <message>
        <source>Show processors and memory of a system over the last half day.</source>
        <translation>اعرض معالجات نظام وذاكرته خلال آخر نصف يوم.</translation>
    </message>
    <message>
        <source>With --csv: memory instead of processors.</source>
        <translation>مع ‎--csv: الذاكرة بدل المعالجات.</translation>
    </message>
    <message>
        <source>Read the consoles again and again, and write a line for each change.</source>
        <translation>اقرأ الوحدات مرارًا واكتب سطرًا لكل تغيير.</translation>
    </message>
    <message>
        <source>Minutes between readings, or 30s, 2h; at first as Lodestar&apos;s Watch has it.</source>
        <translation>الدقائق بين القراءات، أو 30s أو 2h؛ الافتراضي كما في مراقبة Lodestar.</translation>
    </message>
    <message>
        <source>End after so many readings.</source>
        <translation>انته بعد هذا العدد من القراءات.</translation>
    </message>
    <message>
        <source>Write how all consoles are as OpenMetrics, for Prometheus.</source>
        <translation>اكتب حال كل الوحدات بصيغة OpenMetrics لأجل Prometheus.</translation>
    </message>
    <message>
        <source>Replace this file, for a collector of text files; - is standard output.</source>
        <translation>استبدل هذا الملف، لجامع ملفات نصية؛ - هو الخرج القياسي.</translation>
    </message>
    <message>
        <source>Serve it at /metrics instead, on this machine only; ADDRESS:PORT, too.</source>
        <translation>قدّمه على ‎/metrics بدلاً من ذلك، على هذا الجهاز فقط؛ ADDRESS:PORT أيضًا.</translation>
    </message>
    <message>
        <source>With --listen: minutes between readings, or 30s, 2h.</source>
        <translation>مع ‎--listen: الدقائق بين القراءات، أو 30s أو 2h.</translation>
    </message>
    <message>
        <source>Also its processors and memory; may be repeated.</source>
        <translation>معالجاته وذاكرته أيضًا؛ يمكن تكراره.</translation>
    </message>
    <message>
        <source>List the registered consoles without asking them.</source>
        <translation>اسرد الوحدات المسجلة دون سؤالها.</translation>
    </message>
    <message>
        <source>Verify a console and register it.</source>
        <translation>تحقق من وحدة تحكم وسجّلها.</translation>
    </message>
    <message>
        <source>Log on as this user.</source>
        <translation>سجّل الدخول بهذا المستخدم.</translation>
    </message>
    <message>
        <source>Call it so; the address at first.</source>
        <translation>سمّها بهذا الاسم؛ الافتراضي عنوانها.</translation>
    </message>
    <message>
        <source>Remove a console and what is remembered of it.</source>
        <translation>أزل وحدة تحكم وما يُذكر عنها.</translation>
    </message>
    <message>
        <source>Verify the consoles of a fleet sheet and register them together; - reads standard input.</source>
        <translation>تحقق من وحدات جدول وسجّلها معًا؛ - يقرأ الدخل القياسي.</translation>
    </message>
    <message>
        <source>Register none unless all can be.</source>
        <translation>لا تسجّل أيًا منها ما لم يمكن تسجيلها كلها.</translation>
    </message>
    <message>
        <source>Write the consoles as a fleet sheet, without secrets; - writes standard output.</source>
        <translation>اكتب الوحدات كجدول دون أسرار؛ - يكتب الخرج القياسي.</translation>
    </message>
    <message>
        <source>The same as consoles list.</source>
        <translation>مثل consoles list.</translation>
    </message>
    <message>
        <source>%1 did not answer: %2.</source>
        <extracomment>%1 a console, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>لم تجب %1: %2.</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>غير متصلة</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;</extracomment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>لا توجد وحدات تحكم بعد.</translation>
    </message>
    <message>
        <source>Several consoles are called %1. Name one by its address.</source>
        <translation>عدة وحدات اسمها %1. سمّ واحدة بعنوانها.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>أُزيلت %1.</translation>
    </message>
    <message>
        <source>consoles export writes a fleet sheet; consoles list --json writes JSON.</source>
        <translation>يكتب consoles export جدولاً؛ ويكتب consoles list --json صيغة JSON.</translation>
    </message>
    <message>
        <source>Could not be saved: %1</source>
        <translation>تعذر الحفظ: %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved %Ln consoles as %1</source>
        <extracomment>%1 the name of a file</extracomment>
        <translation>
            <numerusform>لم تُحفظ أي وحدة تحكم في %1</numerusform>
            <numerusform>حُفظت وحدة تحكم واحدة في %1</numerusform>
            <numerusform>حُفظت وحدتا تحكم في %1</numerusform>
            <numerusform>حُفظت %Ln وحدات تحكم في %1</numerusform>
            <numerusform>حُفظت %Ln وحدة تحكم في %1</numerusform>
            <numerusform>حُفظت %Ln وحدة تحكم في %1</numerusform>
        </translation>
    </message>
    <message>
        <source>export takes either --openmetrics FILE or --listen PORT.</source>
        <translation>يأخذ export إما ‎--openmetrics FILE أو ‎--listen PORT.</translation>
    </message>
    <message>
        <source>--every goes with --listen; a file is written once.</source>
        <translation>يرافق ‎--every الخيار ‎--listen؛ يُكتب الملف مرة واحدة.</translation>
    </message>
    <message>
        <source>export writes OpenMetrics.</source>
        <translation>يكتب export صيغة OpenMetrics.</translation>
    </message>
    <message numerus="yes">
        <source>export takes --system at most %Ln times.</source>
        <translation>
            <numerusform>لا يأخذ export الخيار ‎--system.</numerusform>
            <numerusform>يأخذ export الخيار ‎--system مرة واحدة على الأكثر.</numerusform>
            <numerusform>يأخذ export الخيار ‎--system مرتين على الأكثر.</numerusform>
            <numerusform>يأخذ export الخيار ‎--system %Ln مرات على الأكثر.</numerusform>
            <numerusform>يأخذ export الخيار ‎--system %Ln مرة على الأكثر.</numerusform>
            <numerusform>يأخذ export الخيار ‎--system %Ln مرة على الأكثر.</numerusform>
        </translation>
    </message>
    <message>
        <source>The metrics of %1 cannot be had: %2.</source>
        <extracomment>%1 a system, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>تعذر الحصول على مقاييس %1: %2.</translation>
    </message>
    <message>
        <source>Listening on %1</source>
        <translation>يستمع على %1</translation>
    </message>
    <message>
        <source>%1 is no file that could be replaced.</source>
        <translation>%1 ليس ملفًا يمكن استبداله.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>تتعذر كتابة %1</translation>
    </message>
    <message>
        <source>reading %1 of %2</source>
        <extracomment>numbers of consoles</extracomment>
        <translation>جارٍ قراءة %1 من %2</translation>
    </message>
    <message>
        <source>%1 was left out: its certificate changed within an attempt. To take the new one, name the console with --console.</source>
        <translation>تُركت %1: تغيّرت شهادتها أثناء محاولة. لقبول الجديدة سمّ وحدة التحكم بـ ‎--console.</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>يتعذر فتح %1</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>تتعذر قراءة %1</translation>
    </message>
    <message>
        <source>This is not a CSV file: %1.</source>
        <translation>هذا ليس ملف CSV: %1.</translation>
    </message>
    <message>
        <source>registered already, left alone</source>
        <translation>مسجلة من قبل، تُترك كما هي</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>لا عنوان</translation>
    </message>
    <message>
        <source>no user</source>
        <translation>بلا مستخدم</translation>
    </message>
    <message>
        <source>no address of a console: %1</source>
        <translation>ليس عنوان وحدة تحكم: %1</translation>
    </message>
    <message>
        <source>the same address as row %1</source>
        <translation>عنوان الصف %1 نفسه</translation>
    </message>
    <message>
        <source>Password of %1</source>
        <translation>كلمة مرور %1</translation>
    </message>
    <message numerus="yes">
        <source>verifying %1 of %2, about %Ln s left</source>
        <translation>
            <numerusform>جارٍ التحقق من %1 من %2، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جارٍ التحقق من %1 من %2، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جارٍ التحقق من %1 من %2، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جارٍ التحقق من %1 من %2، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جارٍ التحقق من %1 من %2، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جارٍ التحقق من %1 من %2، يبقى نحو %Ln&#xa0;ث</numerusform>
        </translation>
    </message>
    <message>
        <source>verifying %1 of %2</source>
        <translation>جارٍ التحقق من %1 من %2</translation>
    </message>
    <message>
        <source>Nothing was added.</source>
        <translation>لم يُضف شيء.</translation>
    </message>
    <message>
        <source>The column %1 was not read: passwords do not belong in a sheet.</source>
        <translation>لم يُقرأ العمود %1: ليس مكان كلمات المرور في جدول.</translation>
    </message>
    <message>
        <source>The column %1 is not used.</source>
        <translation>لا يُستخدم العمود %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles were added.</source>
        <translation>
            <numerusform>لم تُضف أي وحدة تحكم.</numerusform>
            <numerusform>أُضيفت وحدة تحكم واحدة.</numerusform>
            <numerusform>أُضيفت وحدتا تحكم.</numerusform>
            <numerusform>أُضيفت %Ln وحدات تحكم.</numerusform>
            <numerusform>أُضيفت %Ln وحدة تحكم.</numerusform>
            <numerusform>أُضيفت %Ln وحدة تحكم.</numerusform>
        </translation>
    </message>
    <message>
        <source>Say as whom to log on with --user.</source>
        <translation>اذكر بـ ‎--user المستخدم الذي يسجّل الدخول.</translation>
    </message>
    <message>
        <source>The address is empty.</source>
        <translation>العنوان فارغ.</translation>
    </message>
    <message>
        <source>Nothing was added: %1.</source>
        <translation>لم يُضف شيء: %1.</translation>
    </message>
    <message>
        <source>Nothing was added. %1: %2.</source>
        <extracomment>%1 an address, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>لم يُضف شيء. %1: %2.</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>غير مؤكدة</translation>
    </message>
    <message>
        <source>%1 was added.</source>
        <translation>أُضيفت %1.</translation>
    </message>
    <message>
        <source>%1 was added, %2.</source>
        <translation>أُضيفت %1، %2.</translation>
    </message>
    <message>
        <source>--listen takes a port, or an address and a port as 127.0.0.1:9750, not %1.</source>
        <translation>يأخذ ‎--listen منفذًا، أو عنوانًا ومنفذًا مثل 127.0.0.1:9750، وليس %1.</translation>
    </message>
    <message>
        <source>--listen takes an address in numbers, not %1.</source>
        <translation>يأخذ ‎--listen عنوانًا بالأرقام، وليس %1.</translation>
    </message>
    <message>
        <source>--listen takes no address that other machines reach, such as %1: what it serves is neither encrypted nor guarded. Put a server in front of it that is.</source>
        <translation>لا يأخذ ‎--listen عنوانًا تصل إليه أجهزة أخرى، مثل %1: ما يقدمه غير مشفر ولا محمي. ضع أمامه خادمًا مشفرًا ومحميًا.</translation>
    </message>
    <message>
        <source>Cannot listen on %1</source>
        <translation>يتعذر الاستماع على %1</translation>
    </message>
    <message>
        <source>lodestar-cli --help lists all commands.</source>
        <translation>يسرد lodestar-cli --help كل الأوامر.</translation>
    </message>
    <message>
        <source>total processors</source>
        <translation>إجمالي المعالجات</translation>
    </message>
    <message>
        <source>allocated processors</source>
        <translation>المعالجات المخصصة</translation>
    </message>
    <message>
        <source>used processors</source>
        <translation>المعالجات المستخدمة</translation>
    </message>
    <message>
        <source>total memory, GB</source>
        <translation>إجمالي الذاكرة، GB</translation>
    </message>
    <message>
        <source>allocated memory, GB</source>
        <translation>الذاكرة المخصصة، GB</translation>
    </message>
    <message>
        <source>used memory, GB</source>
        <translation>الذاكرة المستخدمة، GB</translation>
    </message>
    <message>
        <source>No sample had values.</source>
        <translation>لم تكن لأي عينة قيم.</translation>
    </message>
    <message>
        <source>No %1.</source>
        <translation>%1: لا شيء.</translation>
    </message>
    <message>
        <source>No known %1.</source>
        <translation>%1: لا شيء معروف.</translation>
    </message>
    <message>
        <source>No open %1.</source>
        <translation>%1: لا شيء مفتوح.</translation>
    </message>
    <message>
        <source>No known open %1.</source>
        <translation>%1: لا شيء معروف مفتوح.</translation>
    </message>
    <message>
        <source>No such %1.</source>
        <translation>%1: لا شيء كهذا.</translation>
    </message>
    <message>
        <source>No known such %1.</source>
        <translation>%1: لا شيء معروف كهذا.</translation>
    </message>
    <message>
        <source>--order takes sent, newest, status or code, not %1.</source>
        <translation>يأخذ ‎--order القيم sent أو newest أو status أو code، وليس %1.</translation>
    </message>
    <message>
        <source>Nothing of that kind is called %1.</source>
        <translation>لا شيء من هذا النوع اسمه %1.</translation>
    </message>
    <message>
        <source>There is no kind %1: consoles, systems, io-servers, partitions, events or groups.</source>
        <extracomment>The kinds are words of the command, which stay as they are</extracomment>
        <translation>لا يوجد نوع %1: consoles أو systems أو io-servers أو partitions أو events أو groups.</translation>
    </message>
    <message>
        <source>The output cannot be written</source>
        <translation>تتعذر كتابة الخرج</translation>
    </message>
    <message>
        <source>The password cannot be read</source>
        <translation>تتعذر قراءة كلمة المرور</translation>
    </message>
    <message>
        <source>There is no password.</source>
        <translation>لا توجد كلمة مرور.</translation>
    </message>
    <message>
        <source>There is no terminal to ask for the password. Give --password-fd N to read it from descriptor N.</source>
        <translation>لا توجد طرفية لطلب كلمة المرور. أعط ‎--password-fd N لقراءتها من الواصف N.</translation>
    </message>
    <message>
        <source>Lodestar is open, or another command is at work, in %1. Close it, or name another folder with --data.</source>
        <translation>‏Lodestar مفتوح، أو أمر آخر يعمل، في %1. أغلقه، أو سمّ مجلدًا آخر بـ ‎--data.</translation>
    </message>
    <message>
        <source>Lodestar keeps nothing in a folder of another user: %1</source>
        <translation>لا يحتفظ Lodestar بشيء في مجلد مستخدم آخر: %1</translation>
    </message>
    <message>
        <source>Lodestar cannot lock its folder: Lodestar.lock in %1 is no file of yours.</source>
        <translation>لا يستطيع Lodestar قفل مجلده: Lodestar.lock في %1 ليس ملفًا لك.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <translation>القرص للقراءة فقط.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>القرص ممتلئ.</translation>
    </message>
    <message>
        <source>There is no home folder. Name a data folder with --data.</source>
        <translation>لا يوجد مجلد رئيسي للمستخدم. سمّ مجلد بيانات بـ ‎--data.</translation>
    </message>
    <message>
        <source>There is no data folder. %1</source>
        <translation>لا يوجد مجلد بيانات. %1</translation>
    </message>
    <message>
        <source>A reset of Lodestar was cut short. Open Lodestar once to finish it.</source>
        <translation>انقطعت إعادة ضبط Lodestar. افتح Lodestar مرة لإتمامها.</translation>
    </message>
    <message>
        <source>The consoles in %1 cannot be read. %2</source>
        <extracomment>%1 a folder, %2 a sentence that tells why</extracomment>
        <translation>تتعذر قراءة الوحدات في %1. %2</translation>
    </message>
    <message>
        <source>No console is called %1.</source>
        <translation>لا توجد وحدة تحكم اسمها %1.</translation>
    </message>
    <message>
        <source>The history was damaged. It was set aside as %1, and a new one was begun. Earlier changes are missing.</source>
        <translation>كان السجل تالفًا. وُضع جانبًا باسم %1 وبدأ سجل جديد. تنقص التغييرات السابقة.</translation>
    </message>
    <message>
        <source>Nothing was stored. %1</source>
        <translation>لم يُحفظ شيء. %1</translation>
    </message>
    <message>
        <source>No consoles yet. Add one with: %1</source>
        <translation>لا توجد وحدات تحكم بعد. أضف واحدة بـ: %1</translation>
    </message>
    <message>
        <source>left out, its certificate changed</source>
        <translation>تُركت، تغيّرت شهادتها</translation>
    </message>
    <message>
        <source>offline since %1</source>
        <translation>غير متصلة منذ %1</translation>
    </message>
    <message>
        <source>Several systems are called %1. Name one by its identifier, or its console with --console.</source>
        <translation>عدة أنظمة اسمها %1. سمّ واحدًا بمعرّفه، أو وحدة تحكمه بـ ‎--console.</translation>
    </message>
    <message>
        <source>No system is called %1.</source>
        <translation>لا يوجد نظام اسمه %1.</translation>
    </message>
    <message>
        <source>--times takes a number from 1 on.</source>
        <translation>يأخذ ‎--times رقمًا من 1 فصاعدًا.</translation>
    </message>
    <message>
        <source>watch writes lines of text, or of JSON with --json.</source>
        <translation>يكتب watch أسطر نص، أو JSON مع ‎--json.</translation>
    </message>
    <message>
        <source>There are no consoles to watch.</source>
        <translation>لا توجد وحدات للمراقبة.</translation>
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
        <translation>الصف %1: %2.</translation>
    </message>
    <message>
        <source>The password is too long.</source>
        <translation>كلمة المرور طويلة جدًا.</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Refresh This Console</source>
        <translation>تحديث وحدة التحكم هذه</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>جارٍ التحديث...</translation>
    </message>
</context>
<context>
    <name>ConnectionScene</name>
    <message>
        <source>Copy all</source>
        <translation>نسخ الكل</translation>
    </message>
</context>
<context>
    <name>CorvelListDelegate</name>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>الانتباه</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
</context>
<context>
    <name>CorvelListScene</name>
    <message>
        <source>Feedback</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>إضافة وحدة تحكم</translation>
    </message>
    <message>
        <source>Fleet Sheet</source>
        <translation>جدول الوحدات</translation>
    </message>
    <message>
        <source>No console of your own yet.</source>
        <translation>لا توجد وحدة تحكم لك بعد.</translation>
    </message>
</context>
<context>
    <name>DashboardScene</name>
    <message>
        <source>Corvel Overview</source>
        <translation>نظرة عامة على Corvel</translation>
    </message>
    <message>
        <source>Corvels Online</source>
        <translation>وحدات Corvel المتصلة</translation>
    </message>
    <message>
        <source>Attention LEDs</source>
        <translation>مصابيح LED للانتباه</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>أحداث الصيانة</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>الأنظمة المُدارة</translation>
    </message>
    <message>
        <source>No managed systems are known.</source>
        <translation>لا تُعرف أنظمة مُدارة.</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>الأقسام المنطقية</translation>
    </message>
    <message>
        <source>No logical partitions are known.</source>
        <translation>لا تُعرف أقسام منطقية.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>لا توجد وحدات تحكم بعد.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>إضافة Corvel</translation>
    </message>
</context>
<context>
    <name>DeltaCorvelScene</name>
    <message>
        <source>Leave out &quot;%1&quot;.</source>
        <translation>احذف «%1».</translation>
    </message>
    <message>
        <source>Leave out &quot;/&quot; and what follows it.</source>
        <translation>احذف «/» وما بعدها.</translation>
    </message>
    <message>
        <source>The address contains a blank.</source>
        <translation>في العنوان فراغ.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Host name or address</source>
        <translation>اسم المضيف أو عنوانه</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
</context>
<context>
    <name>DetailScene</name>
    <message>
        <source>Service report</source>
        <translation>تقرير الصيانة</translation>
    </message>
</context>
<context>
    <name>EditMenuChoices</name>
    <message>
        <source>Edit text</source>
        <translation>تحرير النص</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
</context>
<context>
    <name>EmptyColumn</name>
    <message>
        <source>Choose what to look at.</source>
        <translation>اختر ما تريد النظر إليه.</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>this is the name of a folder.</source>
        <translation>هذا اسم مجلد.</translation>
    </message>
    <message>
        <source>this is the name of a device.</source>
        <translation>هذا اسم جهاز.</translation>
    </message>
    <message>
        <source>the folder does not exist.</source>
        <translation>المجلد غير موجود.</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>القرص ممتلئ.</translation>
    </message>
    <message>
        <source>you may not write there.</source>
        <translation>لا يمكنك الكتابة هناك.</translation>
    </message>
    <message>
        <source>the file is too large for the disk.</source>
        <translation>الملف أكبر مما يسعه القرص.</translation>
    </message>
    <message>
        <source>the name is too long.</source>
        <translation>الاسم طويل جدًا.</translation>
    </message>
    <message>
        <source>this place is not on this device.</source>
        <translation>هذا المكان ليس على هذا الجهاز.</translation>
    </message>
    <message>
        <source>this system shows no dialogue for files.</source>
        <translation>هذا النظام لا يعرض حوارًا للملفات.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>لا يوجد ملف كهذا.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>تتعذر قراءة هذا الملف.</translation>
    </message>
    <message>
        <source>This file is too large.</source>
        <translation>هذا الملف كبير جدًا.</translation>
    </message>
    <message>
        <source>This system shows no dialogue for files.</source>
        <translation>هذا النظام لا يعرض حوارًا للملفات.</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>أُلغي الطلب.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>العنوان غير صالح.</translation>
    </message>
    <message>
        <source>No answer came in time. Check the network.</source>
        <translation>لم تصل إجابة في الوقت المحدد. تحقق من الشبكة.</translation>
    </message>
    <message>
        <source>The name has no address. Check the spelling.</source>
        <translation>ليس للاسم عنوان. تحقق من كتابته.</translation>
    </message>
    <message>
        <source>This address cannot be reached.</source>
        <translation>يتعذر الوصول إلى هذا العنوان.</translation>
    </message>
    <message>
        <source>The connection broke off. Try again.</source>
        <translation>انقطع الاتصال. حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The answer was not understood.</source>
        <translation>لم تُفهم الإجابة.</translation>
    </message>
    <message>
        <source>The answer is larger than Lodestar takes.</source>
        <translation>الإجابة أكبر مما يقبله Lodestar.</translation>
    </message>
    <message>
        <source>No secure connection can be made.</source>
        <translation>يتعذر إنشاء اتصال آمن.</translation>
    </message>
    <message>
        <source>The certificate is not trusted.</source>
        <translation>الشهادة غير موثوقة.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>فشل الطلب.</translation>
    </message>
    <message>
        <source>The console did not accept user or password.</source>
        <translation>لم تقبل وحدة التحكم المستخدم أو كلمة المرور.</translation>
    </message>
    <message>
        <source>The console has an error. Try again.</source>
        <translation>في وحدة التحكم خطأ. حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The address does not answer as a console.</source>
        <translation>لا تجيب وحدة تحكم على هذا العنوان.</translation>
    </message>
</context>
<context>
    <name>EventBars</name>
    <message>
        <source>New Events a Day</source>
        <translation>أحداث جديدة في اليوم</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>لا أيام</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%Ln أيام</numerusform>
            <numerusform>%Ln يومًا</numerusform>
            <numerusform>%Ln يوم</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EventOrderScene</name>
    <message>
        <source>Reset</source>
        <translation>إعادة ضبط</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>مفتوحة</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>إبلاغ الصانع</translation>
    </message>
</context>
<context>
    <name>FeedListScene</name>
    <message>
        <source>Search results</source>
        <translation>نتائج البحث</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>لم يُعثر على شيء.</translation>
    </message>
</context>
<context>
    <name>FeedListViewController</name>
    <message>
        <source>Logical Partitions</source>
        <translation>الأقسام المنطقية</translation>
    </message>
    <message>
        <source>Partitions could not be loaded. Refresh to try again.</source>
        <translation>تعذر تحميل الأقسام. حدّث للمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>There are no partitions here.</source>
        <translation>لا توجد أقسام هنا.</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>الأنظمة المُدارة</translation>
    </message>
    <message>
        <source>Managed systems could not be loaded. Refresh to try again.</source>
        <translation>تعذر تحميل الأنظمة المُدارة. حدّث للمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>This console manages no systems.</source>
        <translation>وحدة التحكم هذه لا تدير أنظمة.</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>مجموعات الموارد</translation>
    </message>
    <message>
        <source>Resource groups could not be loaded. Refresh to try again.</source>
        <translation>تعذر تحميل مجموعات الموارد. حدّث للمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>This console has no resource groups.</source>
        <translation>ليس لوحدة التحكم هذه مجموعات موارد.</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>أحداث الصيانة</translation>
    </message>
    <message>
        <source>Serviceable events could not be loaded. Refresh to try again.</source>
        <translation>تعذر تحميل أحداث الصيانة. حدّث للمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>This console has no serviceable events.</source>
        <translation>ليس لوحدة التحكم هذه أحداث صيانة.</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>خوادم I/O الافتراضية</translation>
    </message>
    <message>
        <source>Virtual servers could not be loaded. Refresh to try again.</source>
        <translation>تعذر تحميل الخوادم الافتراضية. حدّث للمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>Nothing in sight</source>
        <translation>لا شيء هنا</translation>
    </message>
    <message>
        <source>There are no virtual servers here.</source>
        <translation>لا توجد خوادم افتراضية هنا.</translation>
    </message>
</context>
<context>
    <name>FeedbackLayer</name>
    <message>
        <source>Feedback</source>
        <translation>ملاحظات</translation>
    </message>
</context>
<context>
    <name>FeedbackScene</name>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
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
        <source>Black</source>
        <translation>أسود</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Picture of the screen, to draw on</source>
        <translation>صورة الشاشة للرسم عليها</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>قلم</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>تغطية</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>What happened?</source>
        <translation>ماذا حدث؟</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it.</source>
        <translation>تُغطى العناوين قبل عرض الصورة. ولا تتضمن كلمات المرور أبدًا.</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it. The report stays on this device.</source>
        <translation>تُغطى العناوين قبل عرض الصورة. ولا تتضمن كلمات المرور أبدًا. يبقى التقرير على هذا الجهاز.</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>ما يُرسل</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>ما يُحفظ</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>التقارير</translation>
    </message>
</context>
<context>
    <name>FilePicker</name>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>FindButton</name>
    <message>
        <source>Find anywhere</source>
        <translation>بحث في كل مكان</translation>
    </message>
</context>
<context>
    <name>FindScene</name>
    <message>
        <source>Find on all consoles</source>
        <translation>بحث في كل الوحدات</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>No consoles yet.</source>
        <translation>لا توجد وحدات تحكم بعد.</translation>
    </message>
    <message>
        <source>Look at the Demo First</source>
        <translation>شاهد العرض التجريبي أولاً</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>Give the address, user and password of one. Lodestar only reads; nothing on a console is ever changed.</source>
        <translation>أدخل عنوان وحدة تحكم والمستخدم وكلمة المرور. Lodestar يقرأ فقط؛ ولا يغيّر شيئًا في وحدة تحكم أبدًا.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>إضافة Corvel</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>استيراد جدول الوحدات</translation>
    </message>
</context>
<context>
    <name>FleetAgainScene</name>
    <message>
        <source>Verify</source>
        <translation>تحقق</translation>
    </message>
    <message>
        <source>A field that stays empty keeps its password.</source>
        <translation>الحقل الفارغ يحتفظ بكلمة مروره.</translation>
    </message>
</context>
<context>
    <name>FleetChooseScene</name>
    <message>
        <source>In this sheet</source>
        <translation>في هذا الجدول</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديدة</translation>
    </message>
    <message>
        <source>Registered already, left alone</source>
        <translation>مسجلة من قبل، تُترك كما هي</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>لا يمكن استخدامها</translation>
    </message>
    <message>
        <source>Passwords, one a user</source>
        <translation>كلمات المرور</translation>
    </message>
    <message>
        <source>Passwords are never read from a sheet nor written to one.</source>
        <translation>لا تُقرأ كلمات المرور من جدول ولا تُكتب فيه أبدًا.</translation>
    </message>
    <message>
        <source>Nothing is added before all of them were tried.</source>
        <translation>لا يُضاف شيء قبل تجربة الكل.</translation>
    </message>
</context>
<context>
    <name>FleetEventsBar</name>
    <message>
        <source>Order</source>
        <translation>الترتيب</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>FleetEventsContent</name>
    <message>
        <source>Search results</source>
        <translation>نتائج البحث</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>لم يُعثر على شيء.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>إعادة ضبط</translation>
    </message>
</context>
<context>
    <name>FleetEventsHeader</name>
    <message>
        <source>Reset</source>
        <translation>إعادة ضبط</translation>
    </message>
</context>
<context>
    <name>FleetPasswordCard</name>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Show More Users</source>
        <translation>عرض مستخدمين آخرين</translation>
    </message>
</context>
<context>
    <name>FleetSheetScene</name>
    <message>
        <source>Import Consoles from a Sheet</source>
        <translation>استيراد وحدات التحكم من جدول</translation>
    </message>
    <message>
        <source>A sheet is a CSV file with a first line, for example:</source>
        <translation>الجدول ملف CSV له سطر عناوين، مثلاً:</translation>
    </message>
    <message>
        <source>Passwords are asked once a user. They are never read from a sheet nor written to one.</source>
        <translation>تُطلب كلمات المرور مرة لكل مستخدم. ولا تُقرأ من جدول ولا تُكتب فيه أبدًا.</translation>
    </message>
    <message>
        <source>Look at the Demo</source>
        <translation>شاهد العرض التجريبي</translation>
    </message>
    <message>
        <source>A console that is part of Lodestar. It needs no network.</source>
        <translation>وحدة تحكم مع Lodestar. لا تحتاج إلى شبكة.</translation>
    </message>
</context>
<context>
    <name>FleetVerifyHeader</name>
    <message>
        <source>Verified</source>
        <translation>مؤكدة</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>غير مؤكدة</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>في الانتظار</translation>
    </message>
</context>
<context>
    <name>FleetVerifyScene</name>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>FoldedListScene</name>
    <message>
        <source>Nothing left to show</source>
        <translation>لم يبق شيء للعرض</translation>
    </message>
</context>
<context>
    <name>IntroView</name>
    <message>
        <source>Every console, one list</source>
        <translation>كل الوحدات في قائمة واحدة</translation>
    </message>
    <message>
        <source>Health, attention LEDs and events of your whole fleet, refreshed with one pull.</source>
        <translation>حالة كل وحداتك ومصابيح الانتباه والأحداث، تُحدَّث بسحبة واحدة.</translation>
    </message>
    <message>
        <source>The sum of it all</source>
        <translation>المجموع كله</translation>
    </message>
    <message>
        <source>The dashboard adds up managed systems and partitions by their state.</source>
        <translation>تجمع لوحة المعلومات الأنظمة المُدارة والأقسام حسب حالتها.</translation>
    </message>
    <message>
        <source>Every managed system</source>
        <translation>كل نظام مُدار</translation>
    </message>
    <message>
        <source>Find a system by name. Badges tell errors and lit attention LEDs.</source>
        <translation>ابحث عن نظام باسمه. تدل الشارات على الأخطاء ومصابيح الانتباه المضاءة.</translation>
    </message>
    <message>
        <source>Down to the partition</source>
        <translation>حتى القسم</translation>
    </message>
    <message>
        <source>Partitions and virtual I/O servers stand under the system that runs them.</source>
        <translation>تظهر الأقسام وخوادم I/O الافتراضية تحت النظام الذي يشغّلها.</translation>
    </message>
    <message>
        <source>Load over time</source>
        <translation>الحمل عبر الزمن</translation>
    </message>
    <message>
        <source>Processors and memory of a system, total, allocated and used, as lines.</source>
        <translation>معالجات النظام وذاكرته، الإجمالي والمخصص والمستخدم، كخطوط.</translation>
    </message>
    <message>
        <source>Behind a passcode</source>
        <translation>خلف رمز المرور</translation>
    </message>
    <message>
        <source>Lock Lodestar if you like. It reads only and changes nothing on a console.</source>
        <translation>اقفل Lodestar إن شئت. إنه يقرأ فقط ولا يغيّر شيئًا في وحدة تحكم.</translation>
    </message>
</context>
<context>
    <name>KeySheetScene</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Find a command</source>
        <translation>ابحث عن أمر</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Save list as CSV</source>
        <translation>حفظ القائمة CSV</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>حفظ النقاط CSV</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>نسخ القيمة</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>نسخ الكل</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Keyboard help</source>
        <translation>مساعدة لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>الأوامر</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Next or previous control</source>
        <translation>العنصر التالي أو السابق</translation>
    </message>
    <message>
        <source>Next or previous row</source>
        <translation>الصف التالي أو السابق</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>صفحة لأعلى أو لأسفل</translation>
    </message>
    <message>
        <source>First or last row</source>
        <translation>الصف الأول أو الأخير</translation>
    </message>
    <message>
        <source>Open the row</source>
        <translation>فتح الصف</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>قائمة الصف</translation>
    </message>
    <message>
        <source>Buttons of the row</source>
        <translation>أزرار الصف</translation>
    </message>
    <message>
        <source>Step along the chart</source>
        <translation>التنقل على المخطط</translation>
    </message>
    <message>
        <source>Enlarge or shrink</source>
        <translation>تكبير أو تصغير</translation>
    </message>
    <message>
        <source>The whole chart</source>
        <translation>المخطط كله</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>إضافة وحدة تحكم</translation>
    </message>
    <message>
        <source>Find anywhere</source>
        <translation>بحث في كل مكان</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>Corvels</source>
        <translation>Corvel</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>لوحة المعلومات</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>الانتباه</translation>
    </message>
    <message>
        <source>The other column</source>
        <translation>العمود الآخر</translation>
    </message>
    <message>
        <source>First or last value</source>
        <translation>القيمة الأولى أو الأخيرة</translation>
    </message>
    <message>
        <source>Move the enlarged chart</source>
        <translation>تحريك المخطط المكبّر</translation>
    </message>
</context>
<context>
    <name>KeychainWait</name>
    <message>
        <source>Waiting for the system&apos;s keychain...</source>
        <translation>في انتظار سلسلة مفاتيح النظام...</translation>
    </message>
</context>
<context>
    <name>LargeChartScene</name>
    <message>
        <source>Performance Monitoring</source>
        <translation>مراقبة الأداء</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>المعالجات</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>المقاييس</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>أعمدة</translation>
    </message>
    <message>
        <source>Allocated as bars</source>
        <translation>المخصص كأعمدة</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>عرض الكل</translation>
    </message>
</context>
<context>
    <name>ListShareButton</name>
    <message>
        <source>Save list as CSV</source>
        <translation>حفظ القائمة CSV</translation>
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
        <translation>دخول</translation>
    </message>
    <message>
        <source>Reset Passcode and Erase All Data</source>
        <translation>إعادة ضبط رمز المرور ومسح كل البيانات</translation>
    </message>
</context>
<context>
    <name>MCScene</name>
    <message>
        <source>This console has told nothing of itself.</source>
        <translation>لم تذكر وحدة التحكم هذه شيئًا عن نفسها.</translation>
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
        <translation>لوحة المعلومات</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>الانتباه</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
</context>
<context>
    <name>PCMScene</name>
    <message>
        <source>units</source>
        <translation>وحدات</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>مراقبة الأداء</translation>
    </message>
    <message>
        <source>Large Chart</source>
        <translation>مخطط كبير</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>المعالجات</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>المقاييس</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>الإجمالي</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>المخصص</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>المستخدم</translation>
    </message>
</context>
<context>
    <name>PageControl</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>صفحة %1 من %2</translation>
    </message>
</context>
<context>
    <name>PagedIntroView</name>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>تخطي</translation>
    </message>
</context>
<context>
    <name>Passcode</name>
    <message>
        <source>The system&apos;s keychain is locked</source>
        <translation>سلسلة مفاتيح النظام مقفلة</translation>
    </message>
    <message>
        <source>No keychain is running on this system</source>
        <translation>لا تعمل سلسلة مفاتيح على هذا النظام</translation>
    </message>
    <message>
        <source>The system&apos;s keychain does not answer</source>
        <translation>سلسلة مفاتيح النظام لا تجيب</translation>
    </message>
    <message>
        <source>The system&apos;s keychain cannot keep this text</source>
        <translation>لا يمكن لسلسلة مفاتيح النظام حفظ هذا النص</translation>
    </message>
    <message>
        <source>The system&apos;s keychain reported an error</source>
        <translation>أبلغت سلسلة مفاتيح النظام عن خطأ</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain was locked.</source>
        <translation>لم يعد رمز المرور مطلوبًا: كانت سلسلة مفاتيح النظام مقفلة.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: no keychain was running.</source>
        <translation>لم يعد رمز المرور مطلوبًا: لم تكن سلسلة مفاتيح تعمل.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain did not answer.</source>
        <translation>لم يعد رمز المرور مطلوبًا: لم تجب سلسلة مفاتيح النظام.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain could not be read.</source>
        <translation>لم يعد رمز المرور مطلوبًا: تعذرت قراءة سلسلة مفاتيح النظام.</translation>
    </message>
</context>
<context>
    <name>PasswordCreationScene</name>
    <message>
        <source>Old passcode</source>
        <translation>رمز المرور القديم</translation>
    </message>
    <message>
        <source>New passcode</source>
        <translation>رمز المرور الجديد</translation>
    </message>
    <message>
        <source>Verify passcode</source>
        <translation>تأكيد رمز المرور</translation>
    </message>
</context>
<context>
    <name>PerformanceSummary</name>
    <message>
        <source>Lowest</source>
        <translation>الأدنى</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>المتوسط</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>الأعلى</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>الأخير</translation>
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
        <translation>جارٍ التحديث</translation>
    </message>
    <message>
        <source>Pull to refresh</source>
        <translation>اسحب للتحديث</translation>
    </message>
</context>
<context>
    <name>PullSearchField</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>RGListDelegate</name>
    <message>
        <source>updating...</source>
        <translation>جارٍ التحديث...</translation>
    </message>
</context>
<context>
    <name>ReportListScene</name>
    <message>
        <source>No reports on this device.</source>
        <translation>لا توجد تقارير على هذا الجهاز.</translation>
    </message>
</context>
<context>
    <name>ReportScene</name>
    <message>
        <source>Export</source>
        <translation>تصدير</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>صورة الشاشة</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Sending the report...</source>
        <translation>جارٍ إرسال التقرير...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>في انتظار الإجابة...</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Report Sent</source>
        <translation>أُرسل التقرير</translation>
    </message>
    <message>
        <source>Thank you. A copy is in the list of reports.</source>
        <translation>شكرًا. توجد نسخة في قائمة التقارير.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>The report could not be sent</source>
        <translation>تعذر إرسال التقرير</translation>
    </message>
    <message>
        <source>%1
It is kept in the list of reports.</source>
        <translation>%1
يبقى في قائمة التقارير.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>حاول مرة أخرى</translation>
    </message>
    <message>
        <source>Crash</source>
        <translation>انهيار</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>ملاحظات</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
</context>
<context>
    <name>SecretSwitch</name>
    <message>
        <source>Hide password</source>
        <translation>إخفاء كلمة المرور</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
</context>
<context>
    <name>ServiceReportScene</name>
    <message>
        <source>Form of the report</source>
        <translation>شكل التقرير</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Leave Out Addresses</source>
        <translation>دون العناوين</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>حفظ كملف</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Require Passcode</source>
        <translation>طلب رمز المرور</translation>
    </message>
    <message>
        <source>Change Passcode</source>
        <translation>تغيير رمز المرور</translation>
    </message>
    <message>
        <source>Intro Tour</source>
        <translation>جولة تعريفية</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>Open Source Licenses</source>
        <translation>تراخيص المصادر المفتوحة</translation>
    </message>
    <message>
        <source>Ornis License</source>
        <translation>ترخيص Ornis</translation>
    </message>
</context>
<context>
    <name>SheetContent</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Loading</source>
        <translation>جارٍ التحميل</translation>
    </message>
</context>
<context>
    <name>StateBars</name>
    <message>
        <source>Partitions by State</source>
        <translation>الأقسام حسب الحالة</translation>
    </message>
    <message>
        <source>and since yesterday</source>
        <translation>والتغيّر منذ أمس</translation>
    </message>
</context>
<context>
    <name>SwipeButtons</name>
    <message>
        <source>Actions</source>
        <translation>إجراءات</translation>
    </message>
</context>
<context>
    <name>TabBar</name>
    <message>
        <source>Screens</source>
        <translation>الشاشات</translation>
    </message>
</context>
<context>
    <name>WatchConsoleDelegate</name>
    <message>
        <source>watched</source>
        <translation>مراقَبة</translation>
    </message>
    <message>
        <source>not watched</source>
        <translation>غير مراقَبة</translation>
    </message>
</context>
<context>
    <name>WatchScene</name>
    <message>
        <source>Watch While Lodestar Runs</source>
        <translation>المراقبة أثناء عمل Lodestar</translation>
    </message>
    <message>
        <source>Reads every console again by itself and tells you what changed. It stops when Lodestar is closed.</source>
        <translation>يعيد قراءة كل الوحدات من تلقاء نفسه ويخبرك بما تغيّر. يتوقف عند إغلاق Lodestar.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>الفاصل الزمني</translation>
    </message>
    <message>
        <source>Tell me</source>
        <translation>أخبرني</translation>
    </message>
    <message>
        <source>When Something Gets Worse</source>
        <translation>عندما يسوء شيء</translation>
    </message>
    <message>
        <source>When It Gets Better Again</source>
        <translation>عندما يتحسن مجددًا</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>أحداث جديدة</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>وحدات التحكم</translation>
    </message>
    <message>
        <source>Quiet Hours</source>
        <translation>ساعات الهدوء</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>حتى</translation>
    </message>
    <message>
        <source>Send a Test Message</source>
        <translation>إرسال رسالة تجريبية</translation>
    </message>
    <message>
        <source>At most one message a refresh. Names, addresses and texts stay out of it while a passcode is required.</source>
        <translation>رسالة واحدة على الأكثر لكل تحديث. لا تتضمن الأسماء والعناوين والنصوص ما دام رمز المرور مطلوبًا.</translation>
    </message>
</context>
<context>
    <name>WatchTimeRow</name>
    <message>
        <source>Left and right change the time.</source>
        <translation>اليسار واليمين يغيّران الوقت.</translation>
    </message>
    <message>
        <source>%1, earlier</source>
        <translation>%1، وقت أبكر</translation>
    </message>
    <message>
        <source>%1, later</source>
        <translation>%1، وقت لاحق</translation>
    </message>
</context>
<context>
    <name>lodestar::AgeText</name>
    <message>
        <source>just now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 a day as in &quot;yesterday&quot; or &quot;Mon&quot;, %2 a time of day</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>اليوم، %1</translation>
    </message>
    <message>
        <source>since %1</source>
        <extracomment>%1 as in &quot;09:41&quot;, &quot;yesterday 21:40&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>منذ %1</translation>
    </message>
    <message>
        <source>at least since %1</source>
        <translation>منذ %1 على الأقل</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>قُرئ %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min ago</source>
        <translation>
            <numerusform>قبل %Ln&#xa0;د</numerusform>
            <numerusform>قبل %Ln&#xa0;د</numerusform>
            <numerusform>قبل %Ln&#xa0;د</numerusform>
            <numerusform>قبل %Ln&#xa0;د</numerusform>
            <numerusform>قبل %Ln&#xa0;د</numerusform>
            <numerusform>قبل %Ln&#xa0;د</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read %Ln h ago</source>
        <translation>
            <numerusform>قُرئ قبل %Ln&#xa0;س</numerusform>
            <numerusform>قُرئ قبل %Ln&#xa0;س</numerusform>
            <numerusform>قُرئ قبل %Ln&#xa0;س</numerusform>
            <numerusform>قُرئ قبل %Ln&#xa0;س</numerusform>
            <numerusform>قُرئ قبل %Ln&#xa0;س</numerusform>
            <numerusform>قُرئ قبل %Ln&#xa0;س</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionFilterController</name>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message numerus="yes">
        <source>All %Ln consoles</source>
        <translation>
            <numerusform>كل الوحدات (%Ln)</numerusform>
            <numerusform>كل الوحدات (%Ln)</numerusform>
            <numerusform>كل الوحدات (%Ln)</numerusform>
            <numerusform>كل الوحدات (%Ln)</numerusform>
            <numerusform>كل الوحدات (%Ln)</numerusform>
            <numerusform>كل الوحدات (%Ln)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionNowController</name>
    <message>
        <source>Nothing needs attention</source>
        <translation>لا شيء يحتاج إلى انتباه</translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>لا شيء معروف يحتاج إلى انتباه</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <extracomment>%1 a number of rows</extracomment>
        <translation>عرض الكل (%1)</translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionViewController</name>
    <message>
        <source>99+</source>
        <extracomment>%1 the name of a tab</extracomment>
        <translation>‎+99</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln things</source>
        <translation>
            <numerusform>%1، لا أمور</numerusform>
            <numerusform>%1، أمر واحد</numerusform>
            <numerusform>%1، أمران</numerusform>
            <numerusform>%1، %Ln أمور</numerusform>
            <numerusform>%1، %Ln أمرًا</numerusform>
            <numerusform>%1، %Ln أمر</numerusform>
        </translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>الانتباه</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: the tab &quot;Attention&quot; and what of it</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>lodestar::BarButtonOutlet</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
</context>
<context>
    <name>lodestar::ChangeText</name>
    <message>
        <source>#%1 opened</source>
        <translation>فُتح ⁦#%1⁩</translation>
    </message>
    <message>
        <source>#%1 gone</source>
        <translation>اختفى ⁦#%1⁩</translation>
    </message>
    <message>
        <source>#%1</source>
        <translation>⁦#%1⁩</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>‏LED مضاء</translation>
    </message>
    <message>
        <source>LED off</source>
        <translation>‏LED مطفأ</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصلة</translation>
    </message>
    <message>
        <source>Online again after %1</source>
        <translation>متصلة مجددًا بعد %1</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <translation>لم تُقرأ %1</translation>
    </message>
    <message>
        <source>%1 read again</source>
        <translation>قُرئت %1 مجددًا</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>اختفى</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>تغيّرت الشهادة</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>A state before and after.</extracomment>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>worse</source>
        <translation>أسوأ</translation>
    </message>
    <message>
        <source>better</source>
        <translation>أفضل</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>لا وحدات تحكم</numerusform>
            <numerusform>وحدة تحكم واحدة</numerusform>
            <numerusform>وحدتا تحكم</numerusform>
            <numerusform>%Ln وحدات تحكم</numerusform>
            <numerusform>%Ln وحدة تحكم</numerusform>
            <numerusform>%Ln وحدة تحكم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events opened</source>
        <translation>
            <numerusform>لم يُفتح أي حدث</numerusform>
            <numerusform>فُتح حدث واحد</numerusform>
            <numerusform>فُتح حدثان</numerusform>
            <numerusform>فُتحت %Ln أحداث</numerusform>
            <numerusform>فُتح %Ln حدثًا</numerusform>
            <numerusform>فُتح %Ln حدث</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events gone</source>
        <translation>
            <numerusform>لم يختف أي حدث</numerusform>
            <numerusform>اختفى حدث واحد</numerusform>
            <numerusform>اختفى حدثان</numerusform>
            <numerusform>اختفت %Ln أحداث</numerusform>
            <numerusform>اختفى %Ln حدثًا</numerusform>
            <numerusform>اختفى %Ln حدث</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>لا أنظمة</numerusform>
            <numerusform>نظام واحد</numerusform>
            <numerusform>نظامان</numerusform>
            <numerusform>%Ln أنظمة</numerusform>
            <numerusform>%Ln نظامًا</numerusform>
            <numerusform>%Ln نظام</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>لا خوادم I/O</numerusform>
            <numerusform>خادم I/O واحد</numerusform>
            <numerusform>خادما I/O</numerusform>
            <numerusform>%Ln خوادم I/O</numerusform>
            <numerusform>%Ln خادم I/O</numerusform>
            <numerusform>%Ln خادم I/O</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>لا مجموعات</numerusform>
            <numerusform>مجموعة واحدة</numerusform>
            <numerusform>مجموعتان</numerusform>
            <numerusform>%Ln مجموعات</numerusform>
            <numerusform>%Ln مجموعة</numerusform>
            <numerusform>%Ln مجموعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>لا أحداث</numerusform>
            <numerusform>حدث واحد</numerusform>
            <numerusform>حدثان</numerusform>
            <numerusform>%Ln أحداث</numerusform>
            <numerusform>%Ln حدثًا</numerusform>
            <numerusform>%Ln حدث</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>لا أقسام</numerusform>
            <numerusform>قسم واحد</numerusform>
            <numerusform>قسمان</numerusform>
            <numerusform>%Ln أقسام</numerusform>
            <numerusform>%Ln قسمًا</numerusform>
            <numerusform>%Ln قسم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>لا أيام</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%Ln أيام</numerusform>
            <numerusform>%Ln يومًا</numerusform>
            <numerusform>%Ln يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ChangesViewController</name>
    <message>
        <source>Changes</source>
        <translation>التغييرات</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>لم يبق شيء للعرض</translation>
    </message>
    <message>
        <source>Nothing changed in 30 days.</source>
        <translation>لم يتغير شيء خلال 30 يومًا.</translation>
    </message>
    <message>
        <source>Changes show after the second reading.</source>
        <translation>تظهر التغييرات بعد القراءة الثانية.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more changes are not shown.</source>
        <translation>
            <numerusform>لا توجد تغييرات أخرى لا تُعرض.</numerusform>
            <numerusform>تغيير واحد آخر لا يُعرض.</numerusform>
            <numerusform>تغييران آخران لا يُعرضان.</numerusform>
            <numerusform>%Ln تغييرات أخرى لا تُعرض.</numerusform>
            <numerusform>%Ln تغييرًا آخر لا يُعرض.</numerusform>
            <numerusform>%Ln تغيير آخر لا يُعرض.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older changes were left out</source>
        <translation>أُغفلت تغييرات أقدم</translation>
    </message>
    <message>
        <source>What changed before could not be read. The damaged file was set aside.</source>
        <translation>تعذرت قراءة ما تغيّر من قبل. وُضع الملف التالف جانبًا.</translation>
    </message>
</context>
<context>
    <name>lodestar::Clipboard</name>
    <message>
        <source>Could not be copied: the clipboard is in use by another program.</source>
        <translation>تعذر النسخ: برنامج آخر يستخدم الحافظة.</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <extracomment>%1 what was copied</extracomment>
        <translation>نُسخ %1</translation>
    </message>
</context>
<context>
    <name>lodestar::Commands</name>
    <message>
        <source>Watch</source>
        <translation>المراقبة</translation>
    </message>
    <message>
        <source>Fleet sheet</source>
        <translation>جدول الوحدات</translation>
    </message>
    <message>
        <source>Intro tour</source>
        <translation>جولة تعريفية</translation>
    </message>
    <message>
        <source>Bring back the demo</source>
        <translation>إعادة العرض التجريبي</translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionContent</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 dates</extracomment>
        <translation>%1 إلى %2</translation>
    </message>
    <message>
        <source>%1, ended %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1، انتهت %2</translation>
    </message>
    <message>
        <source>%1, begins %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1، تبدأ %2</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>%1 as in &quot;today, 02:58&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>تغيّرت %1</translation>
    </message>
    <message>
        <source>seen for the first time</source>
        <translation>شوهدت لأول مرة</translation>
    </message>
    <message>
        <source>unchanged since %1</source>
        <translation>دون تغيير منذ %1</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>دون تغيير</translation>
    </message>
    <message>
        <source>The new one is neither vouched for by this device’s authorities nor the one shown at the session check.</source>
        <translation>الجديدة لا تضمنها سلطات هذا الجهاز، وليست التي عُرضت عند فحص الجلسة.</translation>
    </message>
    <message>
        <source>Vouched for by this device’s authorities.</source>
        <translation>تضمنها سلطات هذا الجهاز.</translation>
    </message>
    <message>
        <source>Not vouched for by this device’s authorities. Consoles sign their own, so Lodestar takes what it is shown and says here when it changes.</source>
        <translation>لا تضمنها سلطات هذا الجهاز. توقّع وحدات التحكم شهاداتها بنفسها، لذا يقبل Lodestar ما يُعرض عليه ويذكر هنا متى تغيّر.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>الشهادة</translation>
    </message>
    <message>
        <source>At the logon, new</source>
        <translation>عند الدخول، جديدة</translation>
    </message>
    <message>
        <source>At the session check, known since %1</source>
        <translation>عند فحص الجلسة، معروفة منذ %1</translation>
    </message>
    <message>
        <source>At the session check</source>
        <translation>عند فحص الجلسة</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>صاحب الشهادة</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>المُصدر</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>موقّعة ذاتيًا</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>الصلاحية</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint</source>
        <translation>بصمة SHA-256</translation>
    </message>
    <message>
        <source>Compared with last time</source>
        <translation>مقارنة بآخر مرة</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>الثقة</translation>
    </message>
    <message>
        <source>The rest was read %1.</source>
        <extracomment>%1 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>قُرئ الباقي %1.</translation>
    </message>
    <message>
        <source>The rest was read just now.</source>
        <translation>قُرئ الباقي الآن.</translation>
    </message>
    <message>
        <source>Nothing of it could be read.</source>
        <translation>تعذرت قراءة أي شيء منها.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <extracomment>%1 names of feeds, as in &quot;Partitions and resource groups&quot;</extracomment>
        <translation>تعذرت قراءة %1.</translation>
    </message>
    <message>
        <source>Not tried yet</source>
        <translation>لم تُجرَّب بعد</translation>
    </message>
    <message>
        <source>Offline since %1</source>
        <extracomment>%1 as in &quot;02:58&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>غير متصلة منذ %1</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>متصلة</translation>
    </message>
    <message>
        <source>Everything was read %1, in %2.</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;at 09:41&quot;, %2 a time in seconds</extracomment>
        <translation>قُرئ كل شيء %1، خلال %2.</translation>
    </message>
    <message>
        <source>What to try</source>
        <translation>ما يمكن تجربته</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>آخر نجاح</translation>
    </message>
    <message>
        <source>never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>%1 as in &quot;today, 02:43&quot;, %2 a time in seconds</extracomment>
        <translation>%1، خلال %2</translation>
    </message>
    <message>
        <source>Read in full</source>
        <translation>قُرئت كاملة</translation>
    </message>
    <message>
        <source>Version then</source>
        <translation>الإصدار آنذاك</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Session check</source>
        <translation>فحص الجلسة</translation>
    </message>
    <message>
        <source>session</source>
        <translation>الجلسة</translation>
    </message>
    <message>
        <source>Logon</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>logon</source>
        <translation>الدخول</translation>
    </message>
    <message>
        <source>Six feeds</source>
        <translation>ستة موجزات</translation>
    </message>
    <message>
        <source>feeds</source>
        <translation>الموجزات</translation>
    </message>
    <message>
        <source>certificate as before</source>
        <translation>الشهادة كما كانت</translation>
    </message>
    <message>
        <source>first contact</source>
        <translation>أول تواصل</translation>
    </message>
    <message>
        <source>certificate changed</source>
        <translation>تغيّرت الشهادة</translation>
    </message>
    <message>
        <source>address given</source>
        <translation>العنوان معطى</translation>
    </message>
    <message>
        <source>port 12443</source>
        <translation>المنفذ 12443</translation>
    </message>
    <message>
        <source>%1, key accepted</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1، قُبل المفتاح</translation>
    </message>
    <message>
        <source>%1, key ended</source>
        <translation>%1، انتهى المفتاح</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 a reason, %2 a number such as -1202 or 401</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Not the certificate of the session check</source>
        <translation>ليست شهادة فحص الجلسة</translation>
    </message>
    <message>
        <source>no key yet</source>
        <translation>لا مفتاح بعد</translation>
    </message>
    <message>
        <source>not needed</source>
        <translation>غير لازم</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>لم يُوصَل إليه</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>وحدة الإدارة</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>الأنظمة المُدارة</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>خوادم I/O الافتراضية</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>الأقسام المنطقية</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>أحداث الصيانة</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>مجموعات الموارد</translation>
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
            <numerusform>لا مدخلات</numerusform>
            <numerusform>مدخل واحد</numerusform>
            <numerusform>مدخلان</numerusform>
            <numerusform>%Ln مدخلات</numerusform>
            <numerusform>%Ln مدخلاً</numerusform>
            <numerusform>%Ln مدخل</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, the console failed to answer</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1، لم تستطع وحدة التحكم الإجابة</translation>
    </message>
    <message>
        <source>%1 were last read %2</source>
        <extracomment>%1 the name of a feed, %2 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1: آخر قراءة %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <extracomment>%1 the same for another feed, which %2 and %3 add</extracomment>
        <translation>%1، %2: %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 a sentence that lacks its end</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;ث</translation>
    </message>
    <message>
        <source>at %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>الساعة %1</translation>
    </message>
    <message>
        <source>Last attempt</source>
        <translation>آخر محاولة</translation>
    </message>
    <message>
        <source>Feeds</source>
        <translation>الموجزات</translation>
    </message>
    <message>
        <source>%1 of 6</source>
        <extracomment>%1 how many of the six feeds were read</extracomment>
        <translation>%1 من 6</translation>
    </message>
    <message numerus="yes">
        <source>The rest is %Ln min old.</source>
        <translation>
            <numerusform>عمر الباقي %Ln&#xa0;د.</numerusform>
            <numerusform>عمر الباقي %Ln&#xa0;د.</numerusform>
            <numerusform>عمر الباقي %Ln&#xa0;د.</numerusform>
            <numerusform>عمر الباقي %Ln&#xa0;د.</numerusform>
            <numerusform>عمر الباقي %Ln&#xa0;د.</numerusform>
            <numerusform>عمر الباقي %Ln&#xa0;د.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Online, %Ln of 6 feeds missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>متصلة، ينقص %Ln من 6 موجزات</numerusform>
            <numerusform>متصلة، ينقص %Ln من 6 موجزات</numerusform>
            <numerusform>متصلة، ينقص %Ln من 6 موجزات</numerusform>
            <numerusform>متصلة، ينقص %Ln من 6 موجزات</numerusform>
            <numerusform>متصلة، ينقص %Ln من 6 موجزات</numerusform>
            <numerusform>متصلة، ينقص %Ln من 6 موجزات</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln بايت</numerusform>
            <numerusform>%Ln بايت</numerusform>
            <numerusform>%Ln بايت</numerusform>
            <numerusform>%Ln بايت</numerusform>
            <numerusform>%Ln بايت</numerusform>
            <numerusform>%Ln بايت</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>no answer within %Ln s</source>
        <translation>
            <numerusform>لا إجابة خلال %Ln&#xa0;ث</numerusform>
            <numerusform>لا إجابة خلال %Ln&#xa0;ث</numerusform>
            <numerusform>لا إجابة خلال %Ln&#xa0;ث</numerusform>
            <numerusform>لا إجابة خلال %Ln&#xa0;ث</numerusform>
            <numerusform>لا إجابة خلال %Ln&#xa0;ث</numerusform>
            <numerusform>لا إجابة خلال %Ln&#xa0;ث</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionViewController</name>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>لا صفوف</numerusform>
            <numerusform>صف واحد</numerusform>
            <numerusform>صفان</numerusform>
            <numerusform>%Ln صفوف</numerusform>
            <numerusform>%Ln صفًا</numerusform>
            <numerusform>%Ln صف</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListCell</name>
    <message>
        <source>N/A</source>
        <translation>غ/م</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصلة</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>جيدة</translation>
    </message>
    <message>
        <source>%1, updating</source>
        <extracomment>A console in the list, read aloud while it is being fetched: %1 its name</extracomment>
        <translation>%1، جارٍ التحديث</translation>
    </message>
    <message>
        <source>%1, %2, attention %3, events %4</source>
        <extracomment>A console in the list, read aloud: %1 name, %2 status word, %3 and %4 counts</extracomment>
        <translation>%1، %2، الانتباه %3، الأحداث %4</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListViewController</name>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>My Corvels</source>
        <translation>وحدات Corvel</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelMenu</name>
    <message>
        <source>Offline</source>
        <translation>غير متصلة</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>الانتباه</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>نسخ العنوان</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelOverviewTableViewController</name>
    <message>
        <source>not loaded</source>
        <translation>غير محمّل</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>الأنظمة المُدارة</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>خوادم I/O الافتراضية</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>الأقسام المنطقية</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>مجموعات الموارد</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>أحداث الصيانة</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>وحدة الإدارة</translation>
    </message>
</context>
<context>
    <name>lodestar::DBusMessageService</name>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardBars</name>
    <message>
        <source>%1 since yesterday</source>
        <translation>%1 منذ أمس</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardMarks</name>
    <message>
        <source>missing from %1 of %2</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>ينقص من %1 من %2</translation>
    </message>
    <message>
        <source>%1 of %2 answered in full</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>أجابت %1 من %2 بالكامل</translation>
    </message>
    <message>
        <source>Read %1.</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>قُرئ %1.</translation>
    </message>
    <message>
        <source>Read %1 to %2.</source>
        <translation>قُرئ بين %1 و%2.</translation>
    </message>
    <message numerus="yes">
        <source>Next in %Ln min.</source>
        <translation>
            <numerusform>التالية خلال %Ln&#xa0;د.</numerusform>
            <numerusform>التالية خلال %Ln&#xa0;د.</numerusform>
            <numerusform>التالية خلال %Ln&#xa0;د.</numerusform>
            <numerusform>التالية خلال %Ln&#xa0;د.</numerusform>
            <numerusform>التالية خلال %Ln&#xa0;د.</numerusform>
            <numerusform>التالية خلال %Ln&#xa0;د.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardTableViewController</name>
    <message>
        <source>Dashboard</source>
        <translation>لوحة المعلومات</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>في انتظار %1</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %1 of %Ln consoles</source>
        <translation>
            <numerusform>في انتظار %1 من %Ln وحدة</numerusform>
            <numerusform>في انتظار %1 من وحدة واحدة</numerusform>
            <numerusform>في انتظار %1 من وحدتين</numerusform>
            <numerusform>في انتظار %1 من %Ln وحدات</numerusform>
            <numerusform>في انتظار %1 من %Ln وحدة</numerusform>
            <numerusform>في انتظار %1 من %Ln وحدة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DayBarsOutlet</name>
    <message>
        <source>today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Worse, above</source>
        <translation>أسوأ، في الأعلى</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>أفضل، في الأسفل</translation>
    </message>
    <message>
        <source>%1 %2 worse, %3 better</source>
        <extracomment>A day, and what a chart tells of it.</extracomment>
        <translation>%1: أسوأ %2، أفضل %3</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A day, and its number of new events.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>New Events a Day</source>
        <translation>أحداث جديدة في اليوم</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days, %1</source>
        <extracomment>How many days a chart has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>لا أيام، %1</numerusform>
            <numerusform>يوم واحد، %1</numerusform>
            <numerusform>يومان، %1</numerusform>
            <numerusform>%Ln أيام، %1</numerusform>
            <numerusform>%Ln يومًا، %1</numerusform>
            <numerusform>%Ln يوم، %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln days, %2</source>
        <extracomment>A chart&apos;s name, how many days it has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%1، لا أيام، %2</numerusform>
            <numerusform>%1، يوم واحد، %2</numerusform>
            <numerusform>%1، يومان، %2</numerusform>
            <numerusform>%1، %Ln أيام، %2</numerusform>
            <numerusform>%1، %Ln يومًا، %2</numerusform>
            <numerusform>%1، %Ln يوم، %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DeltaCorvelViewController</name>
    <message>
        <source>Add Corvel</source>
        <translation>إضافة Corvel</translation>
    </message>
    <message>
        <source>Edit Corvel</source>
        <translation>تحرير Corvel</translation>
    </message>
    <message>
        <source>verifying...</source>
        <translation>جارٍ التحقق...</translation>
    </message>
    <message>
        <source>Please enter all fields</source>
        <translation>املأ كل الحقول</translation>
    </message>
    <message>
        <source>Corvel has already been added</source>
        <translation>أُضيفت Corvel هذه من قبل</translation>
    </message>
    <message>
        <source>gathering data...</source>
        <translation>جارٍ جمع البيانات...</translation>
    </message>
</context>
<context>
    <name>lodestar::DetailViewController</name>
    <message>
        <source>Serial Number</source>
        <translation>الرقم التسلسلي</translation>
    </message>
    <message>
        <source>Machine Type</source>
        <translation>نوع الآلة</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>نسخ القيمة</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>نسخ الكل</translation>
    </message>
    <message>
        <source>Find on All Consoles</source>
        <translation>بحث في كل الوحدات</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>لا صفوف</numerusform>
            <numerusform>صف واحد</numerusform>
            <numerusform>صفان</numerusform>
            <numerusform>%Ln صفوف</numerusform>
            <numerusform>%Ln صفًا</numerusform>
            <numerusform>%Ln صف</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::EventOrderViewController</name>
    <message>
        <source>Order</source>
        <translation>الترتيب</translation>
    </message>
    <message>
        <source>As the console sends them</source>
        <translation>كما ترسلها وحدة التحكم</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>الأحدث أولاً</translation>
    </message>
    <message>
        <source>By status</source>
        <translation>حسب الحالة</translation>
    </message>
    <message>
        <source>By reference code</source>
        <translation>حسب الرمز المرجعي</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedListViewController</name>
    <message>
        <source>updating...</source>
        <translation>جارٍ التحديث...</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what is listed, such as &quot;Managed Systems&quot;, and a console&apos;s name</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedName</name>
    <message>
        <source>console details</source>
        <translation>تفاصيل وحدة التحكم</translation>
    </message>
    <message>
        <source>Console details</source>
        <translation>تفاصيل وحدة التحكم</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>الأنظمة</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>الأنظمة</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>خوادم I/O</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>الأقسام</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>الأقسام</translation>
    </message>
    <message>
        <source>events</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>resource groups</source>
        <translation>مجموعات الموارد</translation>
    </message>
    <message>
        <source>Resource groups</source>
        <translation>مجموعات الموارد</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <extracomment>%1 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>لم تُقرأ %1</translation>
    </message>
    <message>
        <source>%1 and %2 not read</source>
        <extracomment>%1 and %2 names of feeds, as in &quot;Partitions&quot; and &quot;groups&quot;</extracomment>
        <translation>لم تُقرأ %1 و%2</translation>
    </message>
    <message>
        <source>Nothing of it could be read</source>
        <translation>تعذرت قراءة أي شيء منها</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 و%2</translation>
    </message>
    <message>
        <source>%1, %2 and %3</source>
        <translation>%1 و%2 و%3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 feeds not read</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>لم يُقرأ %Ln من 6 موجزات</numerusform>
            <numerusform>لم يُقرأ %Ln من 6 موجزات</numerusform>
            <numerusform>لم يُقرأ %Ln من 6 موجزات</numerusform>
            <numerusform>لم يُقرأ %Ln من 6 موجزات</numerusform>
            <numerusform>لم يُقرأ %Ln من 6 موجزات</numerusform>
            <numerusform>لم يُقرأ %Ln من 6 موجزات</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <extracomment>%1 and %2 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1 و%2 و%Ln غيرها</numerusform>
            <numerusform>%1 و%2 و%Ln غيرها</numerusform>
            <numerusform>%1 و%2 و%Ln غيرها</numerusform>
            <numerusform>%1 و%2 و%Ln غيرها</numerusform>
            <numerusform>%1 و%2 و%Ln غيرها</numerusform>
            <numerusform>%1 و%2 و%Ln غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>خوادم I/O</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackHost</name>
    <message>
        <source>Keep</source>
        <translation>احتفاظ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Lodestar ended unexpectedly</source>
        <translation>انتهى Lodestar على نحو غير متوقع</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.</source>
        <translation>
            <numerusform>لم يُعد أي تقرير على هذا الجهاز. لا تتضمن التقارير كلمات مرور، ولا تُرسل تلقائيًا.</numerusform>
            <numerusform>أُعد تقرير واحد على هذا الجهاز. لا يتضمن كلمات مرور، ولا يُرسل تلقائيًا.</numerusform>
            <numerusform>أُعد تقريران على هذا الجهاز. لا يتضمنان كلمات مرور، ولا يُرسلان تلقائيًا.</numerusform>
            <numerusform>أُعدت %Ln تقارير على هذا الجهاز. لا تتضمن كلمات مرور، ولا تُرسل تلقائيًا.</numerusform>
            <numerusform>أُعد %Ln تقريرًا على هذا الجهاز. لا تتضمن كلمات مرور، ولا تُرسل تلقائيًا.</numerusform>
            <numerusform>أُعد %Ln تقرير على هذا الجهاز. لا تتضمن كلمات مرور، ولا تُرسل تلقائيًا.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackViewController</name>
    <message>
        <source>Feedback</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>Discard this feedback?</source>
        <translation>تجاهل هذه الملاحظات؟</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>متابعة التحرير</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>حُفظ التقرير</translation>
    </message>
    <message>
        <source>It is in the list of reports on this device.</source>
        <translation>إنه في قائمة التقارير على هذا الجهاز.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>What Is Sent</source>
        <translation>ما يُرسل</translation>
    </message>
    <message>
        <source>What Is Saved</source>
        <translation>ما يُحفظ</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>The report could not be saved</source>
        <translation>تعذر حفظ التقرير</translation>
    </message>
</context>
<context>
    <name>lodestar::FileSaver</name>
    <message>
        <source>Could not be saved: %1</source>
        <extracomment>%1 a reason, such as &quot;the disk is full.&quot;</extracomment>
        <translation>تعذر الحفظ: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>حُفظ باسم %1</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>حفظ كملف</translation>
    </message>
    <message>
        <source>There is already a file named %1.</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>يوجد ملف باسم %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
</context>
<context>
    <name>lodestar::FindListController</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what was found, such as &quot;Managed Systems&quot;, and the text that found it</extracomment>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FindText</name>
    <message>
        <source>Managed Systems</source>
        <translation>الأنظمة المُدارة</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>خوادم I/O الافتراضية</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>الأقسام المنطقية</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>مجموعات الموارد</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>أحداث الصيانة</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>وحدات التحكم</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>لم يُقرأ شيء بعد. حدّث أولاً.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1 إلى %2</translation>
    </message>
    <message>
        <source>%1+</source>
        <extracomment>More than can be counted at a glance</extracomment>
        <translation>‎+%1</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>عرض الكل (%1)</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>لم يُعثر على «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles were searched.</source>
        <translation>
            <numerusform>جرى البحث في %1 من %Ln وحدة.</numerusform>
            <numerusform>جرى البحث في %1 من وحدة واحدة.</numerusform>
            <numerusform>جرى البحث في %1 من وحدتين.</numerusform>
            <numerusform>جرى البحث في %1 من %Ln وحدات.</numerusform>
            <numerusform>جرى البحث في %1 من %Ln وحدة.</numerusform>
            <numerusform>جرى البحث في %1 من %Ln وحدة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد</numerusform>
            <numerusform>عنصران</numerusform>
            <numerusform>%Ln عناصر</numerusform>
            <numerusform>%Ln عنصرًا</numerusform>
            <numerusform>%Ln عنصر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles</source>
        <extracomment>Within &quot;2,318 things on 5 of 6 consoles, read 09:41.&quot;</extracomment>
        <translation>
            <numerusform>%1 من %Ln وحدة</numerusform>
            <numerusform>%1 من وحدة واحدة</numerusform>
            <numerusform>%1 من وحدتين</numerusform>
            <numerusform>%1 من %Ln وحدات</numerusform>
            <numerusform>%1 من %Ln وحدة</numerusform>
            <numerusform>%1 من %Ln وحدة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 on %2, read %3.</source>
        <extracomment>%1 as in &quot;2,318 things&quot;, %2 as in &quot;5 of 6 consoles&quot;, %3 as in &quot;09:41&quot; or &quot;09:41 to 09:43&quot;</extracomment>
        <translation>%1 على %2، وقت القراءة %3.</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>تنقص %1 من %2.</translation>
    </message>
</context>
<context>
    <name>lodestar::FindViewController</name>
    <message>
        <source>Names</source>
        <translation>الأسماء</translation>
    </message>
    <message>
        <source>helios-03, vios-harbour-2b, Ledger production</source>
        <translation>helios-03, vios-harbour-2b, Ledger production</translation>
    </message>
    <message>
        <source>Addresses and serials</source>
        <translation>العناوين والأرقام التسلسلية</translation>
    </message>
    <message>
        <source>192.0.2.63, corvel-b, 06A17C2, 4210</source>
        <translation>192.0.2.63, corvel-b, 06A17C2, 4210</translation>
    </message>
    <message>
        <source>Reference codes</source>
        <translation>الرموز المرجعية</translation>
    </message>
    <message>
        <source>X417-2208, or just X417</source>
        <translation>‏X417-2208 أو X417 فقط</translation>
    </message>
    <message>
        <source>Event numbers and texts</source>
        <translation>أرقام الأحداث ونصوصها</translation>
    </message>
    <message>
        <source>#1042, power supply</source>
        <translation>#1042, power supply</translation>
    </message>
    <message>
        <source>Find on all consoles</source>
        <translation>بحث في كل الوحدات</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>الأخيرة</translation>
    </message>
    <message>
        <source>What can be found</source>
        <translation>ما يمكن العثور عليه</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingRows</name>
    <message>
        <source>Expected</source>
        <translation>متوقع</translation>
    </message>
    <message>
        <source>Marked as expected until it runs again</source>
        <translation>سُجّل كمتوقع حتى يعمل مجددًا</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A sentence and a further part of it: &quot;System in error&quot; and &quot;X417-2208&quot;</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>متوقف، عمل حتى %1</translation>
    </message>
    <message>
        <source>IO server stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>خادم I/O متوقف، عمل حتى %1</translation>
    </message>
    <message>
        <source>Partition stopped, ran until %1</source>
        <translation>قسم متوقف، عمل حتى %1</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>إبلاغ الصانع</translation>
    </message>
    <message>
        <source>System incomplete</source>
        <translation>النظام غير مكتمل</translation>
    </message>
    <message>
        <source>System in error</source>
        <translation>خطأ في النظام</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>‏LED مضاء</translation>
    </message>
    <message>
        <source>IO server in error</source>
        <translation>خطأ في خادم I/O</translation>
    </message>
    <message>
        <source>Partition in error</source>
        <translation>خطأ في القسم</translation>
    </message>
    <message>
        <source>Offline, %1</source>
        <extracomment>%1 why, as in &quot;connection refused&quot;</extracomment>
        <translation>غير متصلة، %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصلة</translation>
    </message>
    <message>
        <source>LED on, system %1</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>‏LED مضاء، النظام %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln resources in error</source>
        <translation>
            <numerusform>خطأ في %1 من %Ln مورد</numerusform>
            <numerusform>خطأ في %1 من مورد واحد</numerusform>
            <numerusform>خطأ في %1 من موردين</numerusform>
            <numerusform>خطأ في %1 من %Ln موارد</numerusform>
            <numerusform>خطأ في %1 من %Ln موردًا</numerusform>
            <numerusform>خطأ في %1 من %Ln مورد</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>لا وحدات تحكم</numerusform>
            <numerusform>وحدة تحكم واحدة</numerusform>
            <numerusform>وحدتا تحكم</numerusform>
            <numerusform>%Ln وحدات تحكم</numerusform>
            <numerusform>%Ln وحدة تحكم</numerusform>
            <numerusform>%Ln وحدة تحكم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>لا أنظمة</numerusform>
            <numerusform>نظام واحد</numerusform>
            <numerusform>نظامان</numerusform>
            <numerusform>%Ln أنظمة</numerusform>
            <numerusform>%Ln نظامًا</numerusform>
            <numerusform>%Ln نظام</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>لا خوادم I/O</numerusform>
            <numerusform>خادم I/O واحد</numerusform>
            <numerusform>خادما I/O</numerusform>
            <numerusform>%Ln خوادم I/O</numerusform>
            <numerusform>%Ln خادم I/O</numerusform>
            <numerusform>%Ln خادم I/O</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>لا أقسام</numerusform>
            <numerusform>قسم واحد</numerusform>
            <numerusform>قسمان</numerusform>
            <numerusform>%Ln أقسام</numerusform>
            <numerusform>%Ln قسمًا</numerusform>
            <numerusform>%Ln قسم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>لا مجموعات</numerusform>
            <numerusform>مجموعة واحدة</numerusform>
            <numerusform>مجموعتان</numerusform>
            <numerusform>%Ln مجموعات</numerusform>
            <numerusform>%Ln مجموعة</numerusform>
            <numerusform>%Ln مجموعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>لا أحداث</numerusform>
            <numerusform>حدث واحد</numerusform>
            <numerusform>حدثان</numerusform>
            <numerusform>%Ln أحداث</numerusform>
            <numerusform>%Ln حدثًا</numerusform>
            <numerusform>%Ln حدث</numerusform>
        </translation>
    </message>
    <message>
        <source>In error on %1</source>
        <extracomment>%1 the name of a system</extracomment>
        <translation>خطأ على %1</translation>
    </message>
    <message>
        <source>system incomplete</source>
        <translation>النظام غير مكتمل</translation>
    </message>
    <message>
        <source>system in error</source>
        <translation>خطأ في النظام</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>‏LED الانتباه مضاء</translation>
    </message>
    <message>
        <source>system %1</source>
        <translation>النظام %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things need attention</source>
        <translation>
            <numerusform>لا شيء يحتاج إلى انتباه</numerusform>
            <numerusform>أمر واحد يحتاج إلى انتباه</numerusform>
            <numerusform>أمران يحتاجان إلى انتباه</numerusform>
            <numerusform>%Ln أمور تحتاج إلى انتباه</numerusform>
            <numerusform>%Ln أمرًا يحتاج إلى انتباه</numerusform>
            <numerusform>%Ln أمر يحتاج إلى انتباه</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events are open</source>
        <translation>
            <numerusform>لا أحداث مفتوحة</numerusform>
            <numerusform>حدث واحد مفتوح</numerusform>
            <numerusform>حدثان مفتوحان</numerusform>
            <numerusform>%Ln أحداث مفتوحة</numerusform>
            <numerusform>%Ln حدثًا مفتوحًا</numerusform>
            <numerusform>%Ln حدث مفتوح</numerusform>
        </translation>
    </message>
    <message>
        <source>No faults</source>
        <translation>لا أعطال</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles answered in full</source>
        <translation>
            <numerusform>أجابت %1 من %Ln وحدة بالكامل</numerusform>
            <numerusform>أجابت %1 من وحدة واحدة بالكامل</numerusform>
            <numerusform>أجابت %1 من وحدتين بالكامل</numerusform>
            <numerusform>أجابت %1 من %Ln وحدات بالكامل</numerusform>
            <numerusform>أجابت %1 من %Ln وحدة بالكامل</numerusform>
            <numerusform>أجابت %1 من %Ln وحدة بالكامل</numerusform>
        </translation>
    </message>
    <message>
        <source>updating... %1 of %2</source>
        <translation>جارٍ التحديث... %1 من %2</translation>
    </message>
    <message>
        <source>The console did not answer. What it would report is not known.</source>
        <translation>لم تجب وحدة التحكم. لا يُعرف ما كانت ستبلغ عنه.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles did not answer. What they would report is not known.</source>
        <translation>
            <numerusform>لم تجب %1 من %Ln وحدة. لا يُعرف ما كانت ستبلغ عنه.</numerusform>
            <numerusform>لم تجب %1 من وحدة واحدة. لا يُعرف ما كانت ستبلغ عنه.</numerusform>
            <numerusform>لم تجب %1 من وحدتين. لا يُعرف ما كانت ستبلغ عنه.</numerusform>
            <numerusform>لم تجب %1 من %Ln وحدات. لا يُعرف ما كانت ستبلغ عنه.</numerusform>
            <numerusform>لم تجب %1 من %Ln وحدة. لا يُعرف ما كانت ستبلغ عنه.</numerusform>
            <numerusform>لم تجب %1 من %Ln وحدة. لا يُعرف ما كانت ستبلغ عنه.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things needed attention there before.</source>
        <translation>
            <numerusform>لم يكن شيء هناك يحتاج إلى انتباه من قبل.</numerusform>
            <numerusform>كان أمر واحد هناك يحتاج إلى انتباه من قبل.</numerusform>
            <numerusform>كان أمران هناك يحتاجان إلى انتباه من قبل.</numerusform>
            <numerusform>كانت %Ln أمور هناك تحتاج إلى انتباه من قبل.</numerusform>
            <numerusform>كان %Ln أمرًا هناك يحتاج إلى انتباه من قبل.</numerusform>
            <numerusform>كان %Ln أمر هناك يحتاج إلى انتباه من قبل.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more things are not shown.</source>
        <translation>
            <numerusform>لا توجد أمور أخرى لا تُعرض.</numerusform>
            <numerusform>أمر واحد آخر لا يُعرض.</numerusform>
            <numerusform>أمران آخران لا يُعرضان.</numerusform>
            <numerusform>%Ln أمور أخرى لا تُعرض.</numerusform>
            <numerusform>%Ln أمرًا آخر لا يُعرض.</numerusform>
            <numerusform>%Ln أمر آخر لا يُعرض.</numerusform>
        </translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>الأخطاء</translation>
    </message>
    <message>
        <source>Not answering</source>
        <translation>لا تجيب</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>التحذيرات</translation>
    </message>
    <message>
        <source>Open events</source>
        <translation>الأحداث المفتوحة</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>وحدات التحكم</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>الأنظمة</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>خوادم I/O</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>الأقسام</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>consoles</source>
        <translation>وحدات التحكم</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>الأنظمة</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>الأقسام</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>events</source>
        <translation>الأحداث</translation>
    </message>
    <message numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>ولا مرة</numerusform>
            <numerusform>مرة واحدة</numerusform>
            <numerusform>مرتان</numerusform>
            <numerusform>%Ln مرات</numerusform>
            <numerusform>%Ln مرة</numerusform>
            <numerusform>%Ln مرة</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>خوادم I/O</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetAgainViewController</name>
    <message>
        <source>Passwords, one a user</source>
        <translation>كلمات المرور</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetChooseViewController</name>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>استيراد جدول الوحدات</translation>
    </message>
    <message>
        <source>Name, address and user were found in its first line.</source>
        <translation>وُجد الاسم والعنوان والمستخدم في سطر العناوين.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>لا صفوف</numerusform>
            <numerusform>صف واحد</numerusform>
            <numerusform>صفان</numerusform>
            <numerusform>%Ln صفوف</numerusform>
            <numerusform>%Ln صفًا</numerusform>
            <numerusform>%Ln صف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Verify %Ln Consoles</source>
        <translation>
            <numerusform>التحقق من الوحدات (%Ln)</numerusform>
            <numerusform>التحقق من الوحدات (%Ln)</numerusform>
            <numerusform>التحقق من الوحدات (%Ln)</numerusform>
            <numerusform>التحقق من الوحدات (%Ln)</numerusform>
            <numerusform>التحقق من الوحدات (%Ln)</numerusform>
            <numerusform>التحقق من الوحدات (%Ln)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventCell</name>
    <message>
        <source>call home</source>
        <translation>إبلاغ الصانع</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventsViewController</name>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
            <numerusform>لم تُقرأ %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>تنقص %1 من %2.</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>لم يُقرأ شيء بعد. حدّث أولاً.</translation>
    </message>
    <message>
        <source>No serviceable events.</source>
        <translation>لا توجد أحداث صيانة.</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>لم يبق شيء للعرض</translation>
    </message>
    <message>
        <source>open</source>
        <translation>مفتوحة</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>إبلاغ الصانع</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <extracomment>What is chosen, how many events that are, and how many there are.</extracomment>
        <translation>%1: %2 من %3</translation>
    </message>
    <message>
        <source>no reference code</source>
        <translation>بلا رمز مرجعي</translation>
    </message>
    <message>
        <source>no status</source>
        <translation>بلا حالة</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetFile</name>
    <message>
        <source>CSV files (*.csv *.txt *.tsv)</source>
        <extracomment>the files that a dialogue shows; what stands in brackets stays</extracomment>
        <translation>ملفات CSV (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>استيراد جدول الوحدات</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetText</name>
    <message>
        <source>“%1”</source>
        <extracomment>%1 a name</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <extracomment>%1 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1 و%Ln غيرها</numerusform>
            <numerusform>%1 و%Ln غيرها</numerusform>
            <numerusform>%1 و%Ln غيرها</numerusform>
            <numerusform>%1 و%Ln غيرها</numerusform>
            <numerusform>%1 و%Ln غيرها</numerusform>
            <numerusform>%1 و%Ln غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1 و%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>لا وحدات تحكم</numerusform>
            <numerusform>وحدة تحكم واحدة</numerusform>
            <numerusform>وحدتا تحكم</numerusform>
            <numerusform>%Ln وحدات تحكم</numerusform>
            <numerusform>%Ln وحدة تحكم</numerusform>
            <numerusform>%Ln وحدة تحكم</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no first line with name, address and user.</source>
        <translation>لا يوجد سطر عناوين فيه الاسم والعنوان والمستخدم.</translation>
    </message>
    <message>
        <source>This file is too large for a fleet sheet.</source>
        <translation>هذا الملف أكبر مما يُقبل لجدول الوحدات.</translation>
    </message>
    <message>
        <source>This is not a CSV file.</source>
        <translation>هذا ليس ملف CSV.</translation>
    </message>
    <message numerus="yes">
        <source>Passwords are never read from a sheet: %1 are left out.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>
            <numerusform>لا تُقرأ كلمات المرور من جدول أبدًا: تُركت %1.</numerusform>
            <numerusform>لا تُقرأ كلمات المرور من جدول أبدًا: تُرك %1.</numerusform>
            <numerusform>لا تُقرأ كلمات المرور من جدول أبدًا: تُرك %1.</numerusform>
            <numerusform>لا تُقرأ كلمات المرور من جدول أبدًا: تُركت %1.</numerusform>
            <numerusform>لا تُقرأ كلمات المرور من جدول أبدًا: تُركت %1.</numerusform>
            <numerusform>لا تُقرأ كلمات المرور من جدول أبدًا: تُركت %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not used: %1.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>غير مستخدم: %1.</translation>
    </message>
    <message>
        <source>Row %1: no address</source>
        <translation>الصف %1: بلا عنوان</translation>
    </message>
    <message>
        <source>Row %1: no user</source>
        <translation>الصف %1: بلا مستخدم</translation>
    </message>
    <message>
        <source>Row %1: the same address as row %2</source>
        <translation>الصف %1: عنوان الصف %2 نفسه</translation>
    </message>
    <message>
        <source>Row %1: not an address</source>
        <translation>الصف %1: ليس عنوانًا</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>جارٍ التحقق</translation>
    </message>
    <message>
        <source>gathering</source>
        <translation>جارٍ الجمع</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>مؤكدة</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>مرفوضة</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>لا إجابة</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>لا عنوان</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>غير مؤكدة</translation>
    </message>
    <message>
        <source>tried</source>
        <translation>جُرّبت</translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln s left</source>
        <translation>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;ث</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;ث</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln min left</source>
        <translation>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;د</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;د</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;د</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;د</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;د</numerusform>
            <numerusform>جُرّبت، يبقى نحو %Ln&#xa0;د</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <translation>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetViewController</name>
    <message>
        <source>Fleet Sheet</source>
        <translation>جدول الوحدات</translation>
    </message>
    <message numerus="yes">
        <source>Export %Ln Consoles</source>
        <translation>
            <numerusform>تصدير الوحدات (%Ln)</numerusform>
            <numerusform>تصدير الوحدات (%Ln)</numerusform>
            <numerusform>تصدير الوحدات (%Ln)</numerusform>
            <numerusform>تصدير الوحدات (%Ln)</numerusform>
            <numerusform>تصدير الوحدات (%Ln)</numerusform>
            <numerusform>تصدير الوحدات (%Ln)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetUnusableViewController</name>
    <message>
        <source>Cannot be used</source>
        <translation>لا يمكن استخدامها</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetVerifyViewController</name>
    <message>
        <source>Verifying</source>
        <translation>التحقق</translation>
    </message>
    <message>
        <source>Stopped. Nothing was added.</source>
        <translation>أُوقف. لم يُضف شيء.</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>استيراد جدول الوحدات</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>%1 a number of so many</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>verified and ready to be added</source>
        <translation>مؤكدة وجاهزة للإضافة</translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln Consoles</source>
        <translation>
            <numerusform>إضافة الوحدات (%Ln)</numerusform>
            <numerusform>إضافة الوحدات (%Ln)</numerusform>
            <numerusform>إضافة الوحدات (%Ln)</numerusform>
            <numerusform>إضافة الوحدات (%Ln)</numerusform>
            <numerusform>إضافة الوحدات (%Ln)</numerusform>
            <numerusform>إضافة الوحدات (%Ln)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %Ln are added together, or none.</source>
        <translation>
            <numerusform>تُضاف كلها معًا (%Ln)، أو لا يُضاف شيء.</numerusform>
            <numerusform>تُضاف كلها معًا (%Ln)، أو لا يُضاف شيء.</numerusform>
            <numerusform>تُضاف كلها معًا (%Ln)، أو لا يُضاف شيء.</numerusform>
            <numerusform>تُضاف كلها معًا (%Ln)، أو لا يُضاف شيء.</numerusform>
            <numerusform>تُضاف كلها معًا (%Ln)، أو لا يُضاف شيء.</numerusform>
            <numerusform>تُضاف كلها معًا (%Ln)، أو لا يُضاف شيء.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 verified and ready to be added</source>
        <translation>%1 من %2 مؤكدة وجاهزة للإضافة</translation>
    </message>
    <message>
        <source>%1 of %2 tried</source>
        <translation>جُرّبت %1 من %2</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>غير مؤكدة</translation>
    </message>
    <message>
        <source>Not added</source>
        <translation>لم تُضف</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>مؤكدة</translation>
    </message>
    <message>
        <source>Show %1 More</source>
        <translation>عرض %1 أخرى</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>عرض الكل (%1)</translation>
    </message>
    <message numerus="yes">
        <source>Try These %Ln Again</source>
        <translation>
            <numerusform>إعادة المحاولة (%Ln)</numerusform>
            <numerusform>إعادة المحاولة (%Ln)</numerusform>
            <numerusform>إعادة المحاولة (%Ln)</numerusform>
            <numerusform>إعادة المحاولة (%Ln)</numerusform>
            <numerusform>إعادة المحاولة (%Ln)</numerusform>
            <numerusform>إعادة المحاولة (%Ln)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Save Them as a Sheet</source>
        <translation>
            <numerusform>حفظها كجدول</numerusform>
            <numerusform>حفظها كجدول</numerusform>
            <numerusform>حفظها كجدول</numerusform>
            <numerusform>حفظها كجدول</numerusform>
            <numerusform>حفظها كجدول</numerusform>
            <numerusform>حفظها كجدول</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing Was Added</source>
        <translation>لم يُضف شيء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message numerus="yes">
        <source>Added %Ln consoles</source>
        <translation>
            <numerusform>لم تُضف أي وحدة تحكم</numerusform>
            <numerusform>أُضيفت وحدة تحكم واحدة</numerusform>
            <numerusform>أُضيفت وحدتا تحكم</numerusform>
            <numerusform>أُضيفت %Ln وحدات تحكم</numerusform>
            <numerusform>أُضيفت %Ln وحدة تحكم</numerusform>
            <numerusform>أُضيفت %Ln وحدة تحكم</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FoundFields</name>
    <message>
        <source>serial %1</source>
        <translation>التسلسلي %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln resources</source>
        <translation>
            <numerusform>لا موارد</numerusform>
            <numerusform>مورد واحد</numerusform>
            <numerusform>موردان</numerusform>
            <numerusform>%Ln موارد</numerusform>
            <numerusform>%Ln موردًا</numerusform>
            <numerusform>%Ln مورد</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln in error</source>
        <extracomment>How many of a group&apos;s resources are in error, as in &quot;16 resources, 1 in error&quot;</extracomment>
        <translation>
            <numerusform>بلا أخطاء</numerusform>
            <numerusform>خطأ في واحد</numerusform>
            <numerusform>خطأ في اثنين</numerusform>
            <numerusform>خطأ في %Ln</numerusform>
            <numerusform>خطأ في %Ln</numerusform>
            <numerusform>خطأ في %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>جيدة</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصلة</translation>
    </message>
</context>
<context>
    <name>lodestar::GroupedListViewController</name>
    <message>
        <source>Unknown system</source>
        <translation>نظام غير معروف</translation>
    </message>
</context>
<context>
    <name>lodestar::KeySheetController</name>
    <message>
        <source>On this screen</source>
        <translation>على هذه الشاشة</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>في كل مكان</translation>
    </message>
    <message>
        <source>In lists</source>
        <translation>في القوائم</translation>
    </message>
    <message>
        <source>In charts</source>
        <translation>في المخططات</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>الأوامر</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>لوحة المفاتيح</translation>
    </message>
</context>
<context>
    <name>lodestar::KeyTable</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A button&apos;s tip: what the button does, and the keys that do it</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>lodestar::LPDetailViewController</name>
    <message>
        <source>Partition Details</source>
        <translation>تفاصيل القسم</translation>
    </message>
</context>
<context>
    <name>lodestar::LargeChartViewController</name>
    <message>
        <source>No performance data available.</source>
        <translation>لا تتوفر بيانات أداء.</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>حفظ النقاط CSV</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>حفظ الصورة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>lodestar::ListShare</name>
    <message>
        <source>Save list as CSV</source>
        <translation>حفظ القائمة CSV</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>حفظ كملف</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>لا صفوف</numerusform>
            <numerusform>صف واحد</numerusform>
            <numerusform>صفان</numerusform>
            <numerusform>%Ln صفوف</numerusform>
            <numerusform>%Ln صفًا</numerusform>
            <numerusform>%Ln صف</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::LoginViewController</name>
    <message>
        <source>Passcode</source>
        <translation>رمز المرور</translation>
    </message>
    <message>
        <source>Login Failed</source>
        <translation>فشل الدخول</translation>
    </message>
    <message>
        <source>Incorrect Credentials</source>
        <translation>رمز المرور غير صحيح</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Reset Application?</source>
        <translation>إعادة ضبط Lodestar؟</translation>
    </message>
    <message>
        <source>Resetting your password will clear all application data</source>
        <translation>إعادة ضبط رمز المرور تمسح كل البيانات</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>lodestar::MCViewController</name>
    <message>
        <source>Main Information</source>
        <translation>المعلومات الرئيسية</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>الطراز والرقم التسلسلي</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>معلومات الإصدار</translation>
    </message>
    <message>
        <source>Console information could not be loaded.</source>
        <translation>تعذر تحميل معلومات وحدة التحكم.</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>وحدة الإدارة</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>جارٍ التحديث...</translation>
    </message>
    <message>
        <source>Console Data</source>
        <translation>بيانات وحدة التحكم</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>غ/م</translation>
    </message>
    <message>
        <source>Console Name</source>
        <translation>اسم وحدة التحكم</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>Build Level</source>
        <translation>مستوى البناء</translation>
    </message>
</context>
<context>
    <name>lodestar::MSDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>المعلومات الرئيسية</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>الطراز والرقم التسلسلي</translation>
    </message>
    <message>
        <source>Processor Information</source>
        <translation>المعالجات</translation>
    </message>
    <message>
        <source>Memory Information</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>الرمز المرجعي</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>‏LED الانتباه مضاء</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>وحدات المعالجة المتاحة</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>الذاكرة المتاحة</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListCell</name>
    <message>
        <source>error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <translation>‏LED الانتباه مضاء</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListViewController</name>
    <message>
        <source>System menu</source>
        <translation>قائمة النظام</translation>
    </message>
    <message>
        <source>Managed System</source>
        <translation>النظام المُدار</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>معلومات النظام</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>مراقبة الأداء</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>الأقسام المنطقية</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>lodestar::MSOverViewController</name>
    <message>
        <source>Managed System</source>
        <translation>النظام المُدار</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>مراقبة الأداء</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>الأقسام المنطقية</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>معلومات النظام</translation>
    </message>
</context>
<context>
    <name>lodestar::OpenSourceViewController</name>
    <message>
        <source>Open Source Licenses</source>
        <translation>تراخيص المصادر المفتوحة</translation>
    </message>
</context>
<context>
    <name>lodestar::OrnisLicenseViewController</name>
    <message>
        <source>Ornis License</source>
        <translation>ترخيص Ornis</translation>
    </message>
</context>
<context>
    <name>lodestar::PCMViewController</name>
    <message>
        <source>Fetching performance data...</source>
        <translation>جارٍ جلب بيانات الأداء...</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>جارٍ التحديث...</translation>
    </message>
    <message>
        <source>No performance data available.</source>
        <translation>لا تتوفر بيانات أداء.</translation>
    </message>
</context>
<context>
    <name>lodestar::PartitionDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>المعلومات الرئيسية</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
</context>
<context>
    <name>lodestar::PasswordCreationViewController</name>
    <message>
        <source>Set Password</source>
        <translation>تعيين رمز المرور</translation>
    </message>
    <message>
        <source>Any characters, any length.</source>
        <translation>أي محارف، أي طول.</translation>
    </message>
    <message>
        <source>%1. The passcode was not changed.</source>
        <translation>%1. لم يُغيَّر رمز المرور.</translation>
    </message>
    <message>
        <source>Please reenter password</source>
        <translation>أدخل رمز المرور مرة أخرى</translation>
    </message>
    <message>
        <source>%1. The passcode was not saved.</source>
        <translation>%1. لم يُحفظ رمز المرور.</translation>
    </message>
    <message>
        <source>Password Saved</source>
        <translation>حُفظ رمز المرور</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>lodestar::PerformanceText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 a day, %2 a time of day</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 as in &quot;lowest 2.80&quot;, %2 a time of day</extracomment>
        <translation>%1 في %2</translation>
    </message>
    <message>
        <source>%1 all along</source>
        <extracomment>%1 a number</extracomment>
        <translation>%1 طوال الوقت</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>الأدنى %1</translation>
    </message>
    <message>
        <source>mean %1</source>
        <translation>المتوسط %1</translation>
    </message>
    <message>
        <source>highest %1</source>
        <translation>الأعلى %1</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>الأخير %1</translation>
    </message>
    <message>
        <source>all along</source>
        <translation>طوال الوقت</translation>
    </message>
    <message>
        <source>Total Processors</source>
        <translation>إجمالي المعالجات</translation>
    </message>
    <message>
        <source>Processors Allocated</source>
        <translation>المعالجات المخصصة</translation>
    </message>
    <message>
        <source>Processors Used</source>
        <translation>المعالجات المستخدمة</translation>
    </message>
    <message>
        <source>Total Memory</source>
        <translation>إجمالي الذاكرة</translation>
    </message>
    <message>
        <source>Memory Allocated</source>
        <translation>الذاكرة المخصصة</translation>
    </message>
    <message>
        <source>Memory Used</source>
        <translation>الذاكرة المستخدمة</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>الإجمالي</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>المخصص</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>المستخدم</translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no values and are left out</source>
        <translation>
            <numerusform>لا عينات بلا قيم</numerusform>
            <numerusform>عينة واحدة بلا قيم تُركت</numerusform>
            <numerusform>عينتان بلا قيم تُركتا</numerusform>
            <numerusform>%Ln عينات بلا قيم تُركت</numerusform>
            <numerusform>%Ln عينة بلا قيم تُركت</numerusform>
            <numerusform>%Ln عينة بلا قيم تُركت</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no time and are left out of the chart</source>
        <translation>
            <numerusform>لا عينات بلا وقت</numerusform>
            <numerusform>عينة واحدة بلا وقت تُركت من المخطط</numerusform>
            <numerusform>عينتان بلا وقت تُركتا من المخطط</numerusform>
            <numerusform>%Ln عينات بلا وقت تُركت من المخطط</numerusform>
            <numerusform>%Ln عينة بلا وقت تُركت من المخطط</numerusform>
            <numerusform>%Ln عينة بلا وقت تُركت من المخطط</numerusform>
        </translation>
    </message>
    <message>
        <source>total %1</source>
        <translation>الإجمالي %1</translation>
    </message>
    <message>
        <source>allocated %1</source>
        <translation>المخصص %1</translation>
    </message>
    <message>
        <source>used %1</source>
        <translation>المستخدم %1</translation>
    </message>
</context>
<context>
    <name>lodestar::PieChartView</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a chart as they are read out.</extracomment>
        <translation>، </translation>
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
        <translation>، </translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <extracomment>A data set&apos;s name, the label of one of its values, and the value.</extracomment>
        <translation>%1، %2: %3</translation>
    </message>
</context>
<context>
    <name>lodestar::RGListCell</name>
    <message>
        <source>cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>أرجواني</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>رمادي</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>وردي</translation>
    </message>
    <message numerus="yes">
        <source>%n Resources</source>
        <translation>
            <numerusform>لا موارد</numerusform>
            <numerusform>مورد واحد</numerusform>
            <numerusform>موردان</numerusform>
            <numerusform>%n موارد</numerusform>
            <numerusform>%n موردًا</numerusform>
            <numerusform>%n مورد</numerusform>
        </translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>جارٍ التحديث...</translation>
    </message>
    <message>
        <source>%1 good, %2 off, %3 alert, %4 error</source>
        <extracomment>A resource group&apos;s states, read aloud: counts</extracomment>
        <translation>جيد %1، متوقف %2، تنبيه %3، خطأ %4</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingController</name>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>نسخ الكل</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingMark</name>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 the name of a feed, as in &quot;partitions&quot;</extracomment>
        <translation>تنقص %1</translation>
    </message>
    <message>
        <source>offline %1</source>
        <extracomment>%1 as in &quot;since 02:58&quot;</extracomment>
        <translation>غير متصلة %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
            <numerusform>ينقص %Ln من 6</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReasonText</name>
    <message>
        <source>Refresh once more.</source>
        <translation>حدّث مرة أخرى.</translation>
    </message>
    <message>
        <source>Check the address.</source>
        <translation>تحقق من العنوان.</translation>
    </message>
    <message>
        <source>Check the address; it may be another service.</source>
        <translation>تحقق من العنوان؛ قد يكون خدمة أخرى.</translation>
    </message>
    <message>
        <source>Tell us through feedback.</source>
        <translation>أخبرنا عبر الملاحظات.</translation>
    </message>
    <message>
        <source>Refresh once more. A busy console often answers the second time.</source>
        <translation>حدّث مرة أخرى. كثيرًا ما تجيب وحدة التحكم المشغولة في المرة الثانية.</translation>
    </message>
    <message>
        <source>If the same feed fails again, restart the console’s web service.</source>
        <translation>إن فشل الموجز نفسه مرة أخرى فأعد تشغيل خدمة الويب في وحدة التحكم.</translation>
    </message>
    <message>
        <source>nothing within 10 s</source>
        <translation>لا شيء خلال 10&#xa0;ث</translation>
    </message>
    <message>
        <source>name not found</source>
        <translation>لم يُعثر على الاسم</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>رُفض الاتصال</translation>
    </message>
    <message>
        <source>connection broke off</source>
        <translation>انقطع الاتصال</translation>
    </message>
    <message>
        <source>redirected too often</source>
        <translation>إعادات توجيه كثيرة</translation>
    </message>
    <message>
        <source>answer not understood</source>
        <translation>لم تُفهم الإجابة</translation>
    </message>
    <message>
        <source>answer too large</source>
        <translation>الإجابة كبيرة جدًا</translation>
    </message>
    <message>
        <source>no secure connection</source>
        <translation>لا اتصال آمن</translation>
    </message>
    <message>
        <source>its certificate changed</source>
        <translation>تغيّرت شهادتها</translation>
    </message>
    <message>
        <source>wrong user or password</source>
        <translation>المستخدم أو كلمة المرور خطأ</translation>
    </message>
    <message>
        <source>the console failed to answer (%1)</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>لم تستطع وحدة التحكم الإجابة (%1)</translation>
    </message>
    <message>
        <source>answered %1</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>أجابت %1</translation>
    </message>
    <message>
        <source>no session key</source>
        <translation>لا مفتاح جلسة</translation>
    </message>
    <message>
        <source>It did not answer within 10 s.</source>
        <translation>لم تجب خلال 10&#xa0;ث.</translation>
    </message>
    <message>
        <source>Its name has no address.</source>
        <translation>ليس لاسمها عنوان.</translation>
    </message>
    <message>
        <source>Something is there, but refuses port 12443.</source>
        <translation>يوجد شيء هناك، لكنه يرفض المنفذ 12443.</translation>
    </message>
    <message>
        <source>It broke off while answering.</source>
        <translation>انقطعت أثناء الإجابة.</translation>
    </message>
    <message>
        <source>It sent Lodestar from one address to the next.</source>
        <translation>أرسلت Lodestar من عنوان إلى آخر.</translation>
    </message>
    <message>
        <source>What it answered is not HTTP.</source>
        <translation>ما أجابت به ليس HTTP.</translation>
    </message>
    <message>
        <source>It answered more than Lodestar takes.</source>
        <translation>أجابت بأكثر مما يقبله Lodestar.</translation>
    </message>
    <message>
        <source>It offers no secure connection that this device accepts.</source>
        <translation>لا تقدم اتصالاً آمنًا يقبله هذا الجهاز.</translation>
    </message>
    <message>
        <source>Its certificate changed in the middle of the attempt. No password was sent.</source>
        <translation>تغيّرت شهادتها أثناء المحاولة. لم تُرسل أي كلمة مرور.</translation>
    </message>
    <message>
        <source>It refused the user or the password.</source>
        <translation>رفضت المستخدم أو كلمة المرور.</translation>
    </message>
    <message>
        <source>It answered with an error of its own.</source>
        <translation>أجابت بخطأ من عندها.</translation>
    </message>
    <message>
        <source>It gave an answer that was not expected.</source>
        <translation>أعطت إجابة غير متوقعة.</translation>
    </message>
    <message>
        <source>It accepted the logon but gave no key.</source>
        <translation>قبلت الدخول لكنها لم تعط مفتاحًا.</translation>
    </message>
    <message>
        <source>Check that this device is on the right network.</source>
        <translation>تحقق من أن هذا الجهاز على الشبكة الصحيحة.</translation>
    </message>
    <message>
        <source>A firewall may drop port 12443.</source>
        <translation>قد يحجب جدار حماية المنفذ 12443.</translation>
    </message>
    <message>
        <source>Refresh in some minutes; the console may be starting.</source>
        <translation>حدّث بعد دقائق؛ قد تكون وحدة التحكم قيد البدء.</translation>
    </message>
    <message>
        <source>Check the spelling of the address.</source>
        <translation>تحقق من كتابة العنوان.</translation>
    </message>
    <message>
        <source>Check this device&apos;s network.</source>
        <translation>تحقق من شبكة هذا الجهاز.</translation>
    </message>
    <message>
        <source>Try the number instead of the name.</source>
        <translation>جرّب الرقم بدل الاسم.</translation>
    </message>
    <message>
        <source>The console may be starting; refresh in some minutes.</source>
        <translation>قد تكون وحدة التحكم قيد البدء؛ حدّث بعد دقائق.</translation>
    </message>
    <message>
        <source>If it stays so, look at what lies between here and the console.</source>
        <translation>إن استمر ذلك فانظر فيما بين هنا ووحدة التحكم.</translation>
    </message>
    <message>
        <source>Update the console: its TLS may be too old.</source>
        <translation>حدّث برمجيات وحدة التحكم: قد يكون TLS فيها قديمًا جدًا.</translation>
    </message>
    <message>
        <source>Before you refresh, compare the new fingerprint below with the one that the console shows.</source>
        <translation>قبل التحديث، قارن البصمة الجديدة أدناه بالتي تعرضها وحدة التحكم.</translation>
    </message>
    <message>
        <source>If they agree, refresh. The new one is then taken.</source>
        <translation>إن تطابقتا فحدّث. تُعتمد الجديدة عندئذ.</translation>
    </message>
    <message>
        <source>If not, something else answers at this address. Do not refresh; ask those who run the network.</source>
        <translation>وإلا فإن شيئًا آخر يجيب على هذا العنوان. لا تحدّث؛ اسأل القائمين على الشبكة.</translation>
    </message>
    <message>
        <source>Check the user on the console; it may be locked.</source>
        <translation>تحقق من المستخدم في وحدة التحكم؛ قد يكون مقفلاً.</translation>
    </message>
    <message>
        <source>Delete the console and add it with the new password.</source>
        <translation>احذف وحدة التحكم وأضفها بكلمة المرور الجديدة.</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportContent</name>
    <message>
        <source>not known</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>الخطورة</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>إبلاغ الصانع</translation>
    </message>
    <message>
        <source>intended</source>
        <translation>مقرر</translation>
    </message>
    <message>
        <source>not intended</source>
        <translation>غير مقرر</translation>
    </message>
    <message>
        <source>, extension %1</source>
        <extracomment>After a reference code; %1 its extension</extracomment>
        <translation>، الامتداد %1</translation>
    </message>
    <message>
        <source>Reference code</source>
        <translation>الرمز المرجعي</translation>
    </message>
    <message>
        <source>Firmware fix</source>
        <translation>إصلاح البرنامج الثابت</translation>
    </message>
    <message>
        <source>First reported</source>
        <translation>أول إبلاغ</translation>
    </message>
    <message>
        <source>Last reported</source>
        <translation>آخر إبلاغ</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>الإبلاغ</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>القطعة %1</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>وحدة التحكم</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>الرقم التسلسلي</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>القراءة</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <extracomment>%1 this application with its version</extracomment>
        <translation>أعده %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Type and model</source>
        <translation>النوع والطراز</translation>
    </message>
    <message>
        <source>Serviceable event #%1</source>
        <extracomment>%1 the event&apos;s number</extracomment>
        <translation>حدث صيانة ⁦#%1⁩</translation>
    </message>
    <message>
        <source>System %1</source>
        <extracomment>%1 a managed system</extracomment>
        <translation>النظام %1</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>‏LED الانتباه مضاء</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>وحدات المعالجة المتاحة</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>الذاكرة المتاحة</translation>
    </message>
    <message>
        <source>[address left out]</source>
        <translation>[حُذف العنوان]</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more times</source>
        <translation>
            <numerusform>ولا مرة أخرى</numerusform>
            <numerusform>مرة واحدة أخرى</numerusform>
            <numerusform>مرتان أخريان</numerusform>
            <numerusform>%Ln مرات أخرى</numerusform>
            <numerusform>%Ln مرة أخرى</numerusform>
            <numerusform>%Ln مرة أخرى</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReportListViewController</name>
    <message>
        <source>Reports</source>
        <translation>التقارير</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportViewController</name>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Report Exported</source>
        <translation>صُدّر التقرير</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>The report could not be exported</source>
        <translation>تعذر تصدير التقرير</translation>
    </message>
    <message>
        <source>Delete this report?</source>
        <translation>حذف هذا التقرير؟</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>The report could not be deleted</source>
        <translation>تعذر حذف التقرير</translation>
    </message>
</context>
<context>
    <name>lodestar::SEDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>المعلومات الرئيسية</translation>
    </message>
    <message>
        <source>Associated FRUs</source>
        <translation>قطع FRU المرتبطة</translation>
    </message>
    <message>
        <source>Event Details</source>
        <translation>تفاصيل الحدث</translation>
    </message>
    <message>
        <source>Problem Number</source>
        <translation>رقم المشكلة</translation>
    </message>
    <message>
        <source>Call Home Intended</source>
        <translation>إبلاغ الصانع مقرر</translation>
    </message>
    <message>
        <source>Prob Mgmt Hardware Record</source>
        <translation>سجل عتاد إدارة المشكلات</translation>
    </message>
    <message>
        <source>Approval State</source>
        <translation>حالة الموافقة</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>الرمز المرجعي</translation>
    </message>
    <message>
        <source>Reference Code Extension</source>
        <translation>امتداد الرمز المرجعي</translation>
    </message>
    <message>
        <source>System Reference Code</source>
        <translation>الرمز المرجعي للنظام</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Firmware Fix</source>
        <translation>إصلاح البرنامج الثابت</translation>
    </message>
    <message>
        <source>First Reported Time</source>
        <translation>وقت أول إبلاغ</translation>
    </message>
    <message>
        <source>Last Reported Time</source>
        <translation>وقت آخر إبلاغ</translation>
    </message>
    <message>
        <source>Data Event Time</source>
        <translation>وقت حدث البيانات</translation>
    </message>
    <message>
        <source>Reporting Console Name</source>
        <translation>اسم وحدة التحكم المبلغة</translation>
    </message>
    <message>
        <source>Reporting MTMS</source>
        <translation>‏MTMS المبلغ</translation>
    </message>
    <message>
        <source>Failing MTMS</source>
        <translation>‏MTMS المعطل</translation>
    </message>
    <message>
        <source>Event Text</source>
        <translation>نص الحدث</translation>
    </message>
    <message>
        <source>Event Severity</source>
        <translation>خطورة الحدث</translation>
    </message>
    <message>
        <source>Notification Type</source>
        <translation>نوع الإبلاغ</translation>
    </message>
    <message>
        <source>Duplicate Count</source>
        <translation>عدد التكرارات</translation>
    </message>
    <message>
        <source>Mgmt Console Name</source>
        <translation>اسم وحدة الإدارة</translation>
    </message>
    <message>
        <source>Mgmt Console MTMS</source>
        <translation>‏MTMS وحدة الإدارة</translation>
    </message>
    <message>
        <source>Part Number</source>
        <translation>رقم القطعة</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>الفئة</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Location Code</source>
        <translation>رمز الموقع</translation>
    </message>
    <message>
        <source>Previously Replaced</source>
        <translation>استُبدلت من قبل</translation>
    </message>
    <message>
        <source>Replaced Timestamp</source>
        <translation>وقت الاستبدال</translation>
    </message>
    <message>
        <source>Replacement Group</source>
        <translation>مجموعة الاستبدال</translation>
    </message>
</context>
<context>
    <name>lodestar::SEListViewController</name>
    <message>
        <source>N/A</source>
        <translation>غ/م</translation>
    </message>
</context>
<context>
    <name>lodestar::SearchBarOutlet</name>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
</context>
<context>
    <name>lodestar::Sentence</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a sentence or of a list</extracomment>
        <translation>، </translation>
    </message>
</context>
<context>
    <name>lodestar::ServiceReportController</name>
    <message>
        <source>Service Report</source>
        <translation>تقرير الصيانة</translation>
    </message>
</context>
<context>
    <name>lodestar::SettingsViewController</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSDetailViewController</name>
    <message>
        <source>VIOS Details</source>
        <translation>تفاصيل VIOS</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSViewController</name>
    <message>
        <source>Check</source>
        <translation>تحقق</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>المفضلة</translation>
    </message>
</context>
<context>
    <name>lodestar::VersionViewController</name>
    <message>
        <source>Release Notes</source>
        <translation>ملاحظات الإصدار</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchConsolesViewController</name>
    <message>
        <source>Consoles</source>
        <translation>وحدات التحكم</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchMessages</name>
    <message>
        <source>%1. %2</source>
        <extracomment>Two sentences, the first without its full stop.</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <extracomment>Times of day, as a sentence or with a console before it.</extracomment>
        <translation>بين %1 و%2</translation>
    </message>
    <message>
        <source>%1, between %2 and %3</source>
        <translation>%1، بين %2 و%3</translation>
    </message>
    <message>
        <source>Last read in full at %1</source>
        <translation>آخر قراءة كاملة: %1</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <extracomment>%1 a console</extracomment>
        <translation>%1 غير متصلة</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>إبلاغ الصانع</translation>
    </message>
    <message>
        <source>%1: #%2 opened</source>
        <extracomment>%1 a console, %2 the number of an event</extracomment>
        <translation>%1: فُتح ⁦#%2⁩</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 غير مكتمل</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;
----------
%1 a console, %2 as in &quot;3 things got worse&quot;</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 stopped</source>
        <translation>توقف %1</translation>
    </message>
    <message>
        <source>%1: LED on</source>
        <translation>%1: LED مضاء</translation>
    </message>
    <message>
        <source>%1 is in error</source>
        <translation>خطأ في %1</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>غير متصلة</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>غير مكتمل: %1</translation>
    </message>
    <message>
        <source>not read in full</source>
        <translation>لم تُقرأ كاملة</translation>
    </message>
    <message>
        <source>LED on at %1</source>
        <translation>‏LED مضاء: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new events</source>
        <translation>
            <numerusform>لا أحداث جديدة</numerusform>
            <numerusform>حدث جديد</numerusform>
            <numerusform>حدثان جديدان</numerusform>
            <numerusform>%Ln أحداث جديدة</numerusform>
            <numerusform>%Ln حدثًا جديدًا</numerusform>
            <numerusform>%Ln حدث جديد</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in error</source>
        <translation>خطأ في %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles offline</source>
        <translation>
            <numerusform>لا وحدات غير متصلة</numerusform>
            <numerusform>وحدة غير متصلة</numerusform>
            <numerusform>وحدتان غير متصلتين</numerusform>
            <numerusform>%Ln وحدات غير متصلة</numerusform>
            <numerusform>%Ln وحدة غير متصلة</numerusform>
            <numerusform>%Ln وحدة غير متصلة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems in error</source>
        <translation>
            <numerusform>لا أنظمة بها خطأ</numerusform>
            <numerusform>نظام به خطأ</numerusform>
            <numerusform>نظامان بهما خطأ</numerusform>
            <numerusform>%Ln أنظمة بها خطأ</numerusform>
            <numerusform>%Ln نظامًا به خطأ</numerusform>
            <numerusform>%Ln نظام به خطأ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems incomplete</source>
        <translation>
            <numerusform>لا أنظمة غير مكتملة</numerusform>
            <numerusform>نظام غير مكتمل</numerusform>
            <numerusform>نظامان غير مكتملين</numerusform>
            <numerusform>%Ln أنظمة غير مكتملة</numerusform>
            <numerusform>%Ln نظامًا غير مكتمل</numerusform>
            <numerusform>%Ln نظام غير مكتمل</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers in error</source>
        <translation>
            <numerusform>لا خوادم I/O بها خطأ</numerusform>
            <numerusform>خادم I/O به خطأ</numerusform>
            <numerusform>خادما I/O بهما خطأ</numerusform>
            <numerusform>%Ln خوادم I/O بها خطأ</numerusform>
            <numerusform>%Ln خادم I/O به خطأ</numerusform>
            <numerusform>%Ln خادم I/O به خطأ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions in error</source>
        <translation>
            <numerusform>لا أقسام بها خطأ</numerusform>
            <numerusform>قسم به خطأ</numerusform>
            <numerusform>قسمان بهما خطأ</numerusform>
            <numerusform>%Ln أقسام بها خطأ</numerusform>
            <numerusform>%Ln قسمًا به خطأ</numerusform>
            <numerusform>%Ln قسم به خطأ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles not read in full</source>
        <translation>
            <numerusform>لا وحدات لم تُقرأ كاملة</numerusform>
            <numerusform>وحدة لم تُقرأ كاملة</numerusform>
            <numerusform>وحدتان لم تُقرآ كاملتين</numerusform>
            <numerusform>%Ln وحدات لم تُقرأ كاملة</numerusform>
            <numerusform>%Ln وحدة لم تُقرأ كاملة</numerusform>
            <numerusform>%Ln وحدة لم تُقرأ كاملة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers stopped</source>
        <translation>
            <numerusform>لا خوادم I/O متوقفة</numerusform>
            <numerusform>خادم I/O متوقف</numerusform>
            <numerusform>خادما I/O متوقفان</numerusform>
            <numerusform>%Ln خوادم I/O متوقفة</numerusform>
            <numerusform>%Ln خادم I/O متوقفًا</numerusform>
            <numerusform>%Ln خادم I/O متوقف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions stopped</source>
        <translation>
            <numerusform>لا أقسام متوقفة</numerusform>
            <numerusform>قسم متوقف</numerusform>
            <numerusform>قسمان متوقفان</numerusform>
            <numerusform>%Ln أقسام متوقفة</numerusform>
            <numerusform>%Ln قسمًا متوقفًا</numerusform>
            <numerusform>%Ln قسم متوقف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln LEDs on</source>
        <translation>
            <numerusform>لا مصابيح LED مضاءة</numerusform>
            <numerusform>مصباح LED مضاء</numerusform>
            <numerusform>مصباحا LED مضاءان</numerusform>
            <numerusform>%Ln مصابيح LED مضاءة</numerusform>
            <numerusform>%Ln مصباح LED مضاء</numerusform>
            <numerusform>%Ln مصباح LED مضاء</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups in error</source>
        <translation>
            <numerusform>لا مجموعات بها خطأ</numerusform>
            <numerusform>مجموعة بها خطأ</numerusform>
            <numerusform>مجموعتان بهما خطأ</numerusform>
            <numerusform>%Ln مجموعات بها خطأ</numerusform>
            <numerusform>%Ln مجموعة بها خطأ</numerusform>
            <numerusform>%Ln مجموعة بها خطأ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got worse</source>
        <translation>
            <numerusform>لم يسؤ شيء</numerusform>
            <numerusform>ساء أمر واحد</numerusform>
            <numerusform>ساء أمران</numerusform>
            <numerusform>ساءت %Ln أمور</numerusform>
            <numerusform>ساء %Ln أمرًا</numerusform>
            <numerusform>ساء %Ln أمر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 on %Ln consoles</source>
        <extracomment>%1 as in &quot;7 things got worse&quot;, %n consoles</extracomment>
        <translation>
            <numerusform>%1 على %Ln وحدة تحكم</numerusform>
            <numerusform>%1 على وحدة تحكم واحدة</numerusform>
            <numerusform>%1 على وحدتي تحكم</numerusform>
            <numerusform>%1 على %Ln وحدات تحكم</numerusform>
            <numerusform>%1 على %Ln وحدة تحكم</numerusform>
            <numerusform>%1 على %Ln وحدة تحكم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things remain</source>
        <translation>
            <numerusform>لم يبق شيء</numerusform>
            <numerusform>يبقى أمر واحد</numerusform>
            <numerusform>يبقى أمران</numerusform>
            <numerusform>تبقى %Ln أمور</numerusform>
            <numerusform>يبقى %Ln أمرًا</numerusform>
            <numerusform>يبقى %Ln أمر</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is online again</source>
        <translation>%1 متصلة مجددًا</translation>
    </message>
    <message>
        <source>%1: %2 read again</source>
        <extracomment>%1 a console, %2 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1: قُرئت %2 مجددًا</translation>
    </message>
    <message>
        <source>%1: LED off</source>
        <translation>%1: LED مطفأ</translation>
    </message>
    <message>
        <source>%1 is %2 again</source>
        <extracomment>%1 a name, %2 the console&apos;s word for a state</extracomment>
        <translation>%1 مجددًا في حالة %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got better</source>
        <translation>
            <numerusform>لم يتحسّن شيء</numerusform>
            <numerusform>تحسّن أمر واحد</numerusform>
            <numerusform>تحسّن أمران</numerusform>
            <numerusform>تحسّنت %Ln أمور</numerusform>
            <numerusform>تحسّن %Ln أمرًا</numerusform>
            <numerusform>تحسّن %Ln أمر</numerusform>
        </translation>
    </message>
    <message>
        <source>After %1</source>
        <extracomment>%1 a console, %2 as in &quot;42 min&quot;</extracomment>
        <translation>بعد %1</translation>
    </message>
    <message>
        <source>%1, after %2</source>
        <translation>%1، بعد %2</translation>
    </message>
    <message>
        <source>In the night, %1</source>
        <extracomment>%1 as in &quot;5 things got worse&quot;</extracomment>
        <translation>خلال الليل، %1</translation>
    </message>
    <message>
        <source>None of them needs attention any more</source>
        <translation>لم يعد أي منها يحتاج إلى انتباه</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them still need attention</source>
        <translation>
            <numerusform>لم يعد أي منها يحتاج إلى انتباه</numerusform>
            <numerusform>ما زال أحدها يحتاج إلى انتباه</numerusform>
            <numerusform>ما زال اثنان منها يحتاجان إلى انتباه</numerusform>
            <numerusform>ما زالت %Ln منها تحتاج إلى انتباه</numerusform>
            <numerusform>ما زالت %Ln منها تحتاج إلى انتباه</numerusform>
            <numerusform>ما زالت %Ln منها تحتاج إلى انتباه</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles need attention</source>
        <translation>
            <numerusform>لا تحتاج أي وحدة تحكم إلى انتباه</numerusform>
            <numerusform>وحدة تحكم واحدة تحتاج إلى انتباه</numerusform>
            <numerusform>وحدتا تحكم تحتاجان إلى انتباه</numerusform>
            <numerusform>%Ln وحدات تحكم تحتاج إلى انتباه</numerusform>
            <numerusform>%Ln وحدة تحكم تحتاج إلى انتباه</numerusform>
            <numerusform>%Ln وحدة تحكم تحتاج إلى انتباه</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>لا شيء معروف يحتاج إلى انتباه</translation>
    </message>
    <message>
        <source>Open Lodestar to see more</source>
        <translation>افتح Lodestar لرؤية المزيد</translation>
    </message>
    <message>
        <source>Lodestar can reach you</source>
        <translation>يستطيع Lodestar إعلامك</translation>
    </message>
    <message>
        <source>This is how a message looks</source>
        <translation>هكذا تبدو الرسالة</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchText</name>
    <message>
        <source>every %1</source>
        <extracomment>%1 as in &quot;15 min&quot;</extracomment>
        <translation>كل %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>متوقفة</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>open</source>
        <translation>المفتوحة</translation>
    </message>
    <message>
        <source>open, call home</source>
        <translation>المفتوحة، إبلاغ الصانع</translation>
    </message>
    <message>
        <source>all %1</source>
        <translation>الكل (%1)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 are left out until you refresh them by hand: their certificates changed.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>تُستبعد %1 حتى تحدّثها يدويًا: تغيّرت شهاداتها.</numerusform>
            <numerusform>تُستبعد %1 حتى تحدّثها يدويًا: تغيّرت شهادتها.</numerusform>
            <numerusform>تُستبعد %1 حتى تحدّثهما يدويًا: تغيّرت شهادتاهما.</numerusform>
            <numerusform>تُستبعد %1 حتى تحدّثها يدويًا: تغيّرت شهاداتها.</numerusform>
            <numerusform>تُستبعد %1 حتى تحدّثها يدويًا: تغيّرت شهاداتها.</numerusform>
            <numerusform>تُستبعد %1 حتى تحدّثها يدويًا: تغيّرت شهاداتها.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
            <numerusform>%Ln&#xa0;س</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
            <numerusform>%Ln&#xa0;د</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::WatchViewController</name>
    <message>
        <source>Watch</source>
        <translation>المراقبة</translation>
    </message>
    <message>
        <source>This system shows no messages. Attention still counts.</source>
        <translation>هذا النظام لا يعرض رسائل. يستمر العدّ في «الانتباه».</translation>
    </message>
    <message>
        <source>Reading goes on. At %1 one message sums up the night, if anything got worse.</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>تستمر القراءة. عند الساعة %1 تلخص رسالة واحدة ما جرى ليلاً، إن ساء شيء.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>الفاصل الزمني</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>أحداث جديدة</translation>
    </message>
</context>
<context>
    <name>lodestar::WindowDialogs</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>يراقب وحدات تحكم Corvel ولا يغيّر شيئًا.</translation>
    </message>
    <message>
        <source>Keep everything in this folder.</source>
        <translation>الاحتفاظ بكل شيء في هذا المجلد.</translation>
    </message>
    <message>
        <source>Offer to send feedback and crash reports to this https address.</source>
        <translation>عرض إرسال الملاحظات وتقارير الانهيار إلى عنوان https هذا.</translation>
    </message>
    <message>
        <source>Fill the screen.</source>
        <translation>ملء الشاشة.</translation>
    </message>
    <message>
        <source>Leave once the first screen is drawn, for measuring.</source>
        <translation>الخروج بعد رسم أول شاشة، للقياس.</translation>
    </message>
    <message>
        <source>Speak this language instead of the system&apos;s (en, de, fr, es, ja, ar).</source>
        <extracomment>In brackets codes, which stay as they are</extracomment>
        <translation>استخدام هذه اللغة بدل لغة النظام (en، de، fr، es، ja، ar).</translation>
    </message>
</context>
</TS>
