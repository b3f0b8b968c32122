"""The course's tables: lessons, special places, regimes, aids, and what of the wording is fixed."""

# English name, Arabic name.
LESSON_NAMES = (
    ("Guide Row", "صف الارتكاز"),
    ("Top Row", "الصف العلوي"),
    ("Top Row", "الصف العلوي"),
    ("Pinkie & Ring", "خنصر وبنصر"),
    ("Bottom Row", "الصف الأسفل"),
    ("Bottom Row", "الصف الأسفل"),
    ("Special Characters", "حروف خاصة"),
    ("Punctuation Marks", "النقاط"),
    ("Signs", "الإشارات"),
    ("Signs", "الإشارات"),
    ("Numbers", "الأرقام"),
    ("Sets", "المجموعات"),
    ("Shift Key", "مفتاح العالي"),
    ("Revision", "مراجعة"),
    ("End & Mouse", "نهاية وماوس"),
)

# Special exercises of the English list: flag and caption in the chooser.
ENGLISH_ANAGRAM, ARABIC_ANAGRAM, FREE_TEXT = "englishAnagram", "arabicAnagram", "freeText"
SPECIAL_FLAGS = (ARABIC_ANAGRAM, ENGLISH_ANAGRAM, FREE_TEXT)
SPECIAL_CAPTIONS = {
    ENGLISH_ANAGRAM: "Anagram",
    ARABIC_ANAGRAM: "-الجناس-",
    FREE_TEXT: "Free Text",
}
SPECIAL_PLACES = {
    (8, 5): ENGLISH_ANAGRAM,
    (9, 5): ARABIC_ANAGRAM,
    (10, 4): ENGLISH_ANAGRAM,
    (10, 5): ARABIC_ANAGRAM,
    (11, 5): ARABIC_ANAGRAM,
    **{(lesson, 3): ENGLISH_ANAGRAM for lesson in range(12, 16)},
    **{(lesson, 4): FREE_TEXT for lesson in range(12, 16)},
    **{(lesson, 5): ARABIC_ANAGRAM for lesson in range(12, 16)},
}

# Exercises that check late, by lesson: Arabic, English. ALL of lessons 14 and 15 in Arabic.
ALL = (1, 2, 3, 4, 5)
CHECKED_LATE = {
    3: ((), (5,)),
    5: ((), (5,)),
    6: ((), (5,)),
    11: ((5,), (4,)),
    12: ((1, 2), (1, 2)),
    13: ((4, 5), (1, 2)),
    14: (ALL, (1, 2)),
    15: (ALL, (1, 2)),
}

# The aids, in the order in which the options dialog shows them.
AIDS = ("optKeyCaps", "optHands", "optCounter", "optClock", "optSound")

# Lessons, exercises; key caps, hands, counter, clock: + on, - off, ? free. The sound is free.
AIDS_ARABIC = (
    ((1, 2), (1, 2, 3, 4), "++??"),
    ((1, 2), (5,), "+-??"),
    ((3, 4, 5), (1, 2, 3, 4, 5), "++??"),
    ((6,), (1, 2, 3, 4), "++??"),
    ((6,), (5,), "++++"),
    ((7,), (1, 2, 3), "++++"),
    ((7,), (4, 5), "++??"),
    ((8,), (1, 3, 5), "++??"),
    ((8,), (2, 4), "++++"),
    ((9,), (1, 2, 3, 5), "++??"),
    ((9,), (4,), "++++"),
    ((10,), (1, 3, 4), "++++"),
    ((10,), (2, 5), "++??"),
    ((11,), (1, 2, 3, 4, 5), "++??"),
    ((12,), (1, 2, 3, 4), "+???"),
    ((12,), (5,), "+-??"),
    ((13,), (1, 2, 3), "+?++"),
    ((13,), (4, 5), "+-++"),
    ((14,), (1, 2, 3, 4, 5), "+-++"),
    ((15,), (1, 2, 3, 4, 5), "--++"),
)
AIDS_ENGLISH = (
    ((1, 2), (1, 2, 3, 4), "++??"),
    ((1, 2), (5,), "+-??"),
    ((3,), (1, 2, 3, 4), "++??"),
    ((3,), (5,), "+-++"),
    ((4, 5), (1, 2, 3, 4), "++??"),
    ((4, 5), (5,), "+-??"),
    ((6,), (1, 2, 3, 4), "++??"),
    ((6,), (5,), "--++"),
    ((7,), (1, 2, 3), "++++"),
    ((7,), (4,), "++??"),
    ((7,), (5,), "?-??"),
    ((8,), (1, 3), "++??"),
    ((8,), (2, 4), "++++"),
    ((9,), (1, 2, 3), "++??"),
    ((9,), (4,), "++++"),
    ((10,), (1, 3), "++++"),
    ((10,), (2,), "++??"),
    ((11,), (1, 2, 3, 4), "++??"),
    ((12, 13), (1, 2), "+???"),
    ((14,), (1,), "+???"),
    ((14,), (2,), "?-??"),
    ((15,), (1, 2), "--++"),
)
AIDS_SPECIAL = {
    ENGLISH_ANAGRAM: "?????",
    ARABIC_ANAGRAM: "+????",
    FREE_TEXT: "--???",
}

# The three texts that stand for every special exercise; the one of 10.4 has a second blank.
NOTE_ENGLISH_ANAGRAM = (
    "Here yourself choose the keys that you would particularly like to work on. To do that "
    "you simply have to type them when KeyFluent asks you. You are limited to 10 keys."
)
NOTE_TWO_BLANKS = ("particularly like", "particularly  like")
NOTE_FREE_TEXT = (
    "You are free to type any text that suit you, so that you can check your typing speed on "
    "texts longer than those proposed here, and continue exercising yourself on new texts. "
    "KeyFluent measure your speed as usual, but cannot detect your mistakes(of course...)."
)
NOTE_ARABIC_ANAGRAM = (
    "حدد المفاتيح التي ترغب التدرب عليها بشكل خاص، ولذلك ما عليك سوى النقر عليها عندما يطلب "
    "(كي فلونت) ذلك."
    "\r"
    "عشرة (10) مفاتيح كحد أقصى."
)

# First paragraphs of some notes: English, Arabic.
NOTE_BEGINNINGS = {
    (1, 1): (
        "Place your Fingers on the Guide Row.",
        "ضع يديك على صف الاستراحة، اليد اليمنى على المفاتيح ك م ن ت، اليد اليسرى على "
        "المفاتيح ش س ي ب،",
    ),
    (2, 4): (
        "Words are going to appear one by one: first imagine striking each letter, with the "
        "help of the keyboard on the screen, then type the word at one go. Strike the keys "
        "with as regular a rhythm as possible without getting bogged down with keys.",
        "ستظهر الكلمات الواحدة تلو الأخرى، أمعن النظر في البداية بطريقة طبع كل حرف وذلك "
        "بالاستعانة بجدول المفاتيح المرسوم على الشاشة، وبعد ذلك عليك طبع الكلمة دفعة واحدة "
        "وبوتيرة سريعة ومنتظمة.",
    ),
    (3, 1): (
        "A short review of the preceding exercises.",
        "مراجعة سريعة للدروس السابقة.",
    ),
    (7, 3): (
        "Some punctuation rules.",
        "تمرين إضافي أخير للحرف (ة).",
    ),
    (15, 1): (
        "Now the pedagogical aids have disappeared.",
        "تختفي وسائل العون التعليمي من هذا التمرين. وإنك تجد نفسك في ظروف عمل حقيقي.",
    ),
}
LESSON_NOTE_BEGINNINGS = {
    1: "سيقوم هذا الدرس بتمرينك على وضع أصابعك بشكل سليم على الصف الأوسط من لوحة",
    4: "تمارين للخنصرين والبنصرين:",
    7: "سنتعرض في هذا الدرس إلى تمرين الأصابع على طباعة الأحرف التالية: (ة)، (أ)، و(ء).",
    12: "يتابع هذا الدرس تدريبك على استخدام لوحة المفاتيح بشكل سليم عن طريق تدريبك على",
    15: "يعطي هذا الدرس عددا من التمارين التي تضم النصوص التي يجب عليك طباعتها.",
}

# Rows and beginning of the first row: English, Arabic. None is an English place without a text.
TEXT_BEGINNINGS = {
    (1, 1): ((46, "asdf"), (40, "ش س ي ب")),
    (1, 2): ((48, "ded"), (49, "ي ث ي")),
    (1, 3): ((60, "lead;"), (5, "هنيم مهين منيه هيمن ميهن يمهن يه")),
    (1, 4): ((56, "fgf"), (28, "بلب")),
    (1, 5): ((6, "a las a flask falls;"), (4, "كان المشمش مهشما مكث الكهل ببيته")),
    (2, 1): ((62, "frf"), (48, "بقب")),
    (2, 2): ((104, "drag"), (6, "فقيس عفيف افقه غالب عفيف فقيس اف")),
    (2, 3): ((12, "was waste wasted wasteful we wel"), (49, "ضشض")),
    (2, 4): ((103, "dwell"), (6, "فقيس قفيس شفيق صفيق قفيص فقيص خف")),
    (2, 5): ((11, "this gay lady was a whole day at"), (6, "ضياع صياح صالح فالح مالح نجيب عج")),
    (3, 1): ((44, "write"), (3, "ضيف قيح صيح فيح جنح معه فقه فضح")),
    (3, 2): ((12, "quiet write wrote were pour type"), (5, "مع ضعيف فصيح اكتمال احتمال اشتما")),
    (3, 3): ((66, "tiger"), (6, "بص بق لب لبيب سليب بلبل بلابل بل")),
    (3, 4): ((7, "jay lay day gay flay slay yard t"), (4, "تمتع متاع بيت مات ميت تتمتع البن")),
    (3, 5): ((7, "the little girl says that the ti"), (6, "يضم الكتاب مقالا قال نحن الكاتبي")),
    (4, 1): ((55, "apple"), (5, "العمل الجمل الكسل الكهل القمع ال")),
    (4, 2): ((14, "afar adapt ahead apathy apart ap"), (4, "كانا لكننا اماكننا ايامك شمسكما")),
    (4, 3): ((14, "was walk word sword few law jaw"), (4, "سا سن سم سب سل سمك سمين سمان سما")),
    (4, 4): ((6, "wrap your wrist; would swallow a"), (5, "مات مال ماس ماص ملك ملص مالح مال")),
    (4, 5): ((8, "we are sorry your wife was ill t"), (5, "انكما شابان جميلا الخلق تتماشيان")),
    (5, 1): ((77, "shark"), (4, "شمسنا شعبنا شكلنا شملنا ضيفنا صي")),
    (5, 2): ((85, "dcd"), (4, "ذبح ذبحت ذبحنا ذبحتم مذبح مذابح")),
    (5, 3): ((66, "price;"), (47, "ترت")),
    (5, 4): ((15, "love rove over pave have rave fi"), (4, "تشرق الشمس شرقا كما تغرب غربا بد")),
    (5, 5): ((6, "these fifteen very ancient stove"), (4, "لا بد من تكرار هذا التمرين عددا")),
    (6, 1): ((41, "none;"), (4, "غبار ديار دمار دثار دكان دخان رم")),
    (6, 2): ((92, "fbf"), (4, "عزيز غزير زاحم زاكم زاخم زاهر ال")),
    (6, 3): ((14, "madam magic macro magnum machine"), (3, "البحر والبحور والنهر والانهار في")),
    (6, 4): ((14, "beverage brevity brave benevolen"), (4, "البحر والبحور والنهر والانهار في")),
    (6, 5): ((10, "these big blue books are both in"), (3, "يود كل طالب ذكي ان يظهر مظهر ودو")),
    (7, 1): ((44, "baby;"), (5, "البربط البربس البرجد البرود السج")),
    (7, 2): ((36, "k,k"), (5, "قوة هوة عامة ذروة عامية علمية كم")),
    (7, 3): ((4, "to be, or not to be, that is the"), (5, "النصيحة الهامة هي ان تراجع التما")),
    (7, 4): ((13, "Africa.  America.  September.  S"), (4, "بدء دفء جزء ملء شيء جاء هاء باء")),
    (7, 5): ((15, "The human body consists of the h"), (5, "أخذ أثر أذن أسف دأب صدأ دأم دبأ")),
    (8, 1): ((36, ";?;"), (3, "اتى ابى رأى اخرى ادنى اعلى اغنى")),
    (8, 2): ((11, "How are you?  Who is she?  Where"), (3, "إن إبل إيوان إكرام إبريق إستأثر")),
    (8, 3): ((24, ";-;"), (3, "بديع, جديد، قريب, بعيد, شديد, فر")),
    (8, 4): ((9, "twenty-one; thirty-two; fifty-fi"), (3, "شمال /شرق جنوب/ غرب شمال/ غرب جن")),
    (8, 5): (None, (3, "إن الأخرى، لا بد، آن، مؤات، فؤاد")),
    (9, 1): ((15, "Each day, thousands of electroni"), (6, "العدد: الثمن: الساعة: الكمية: ال")),
    (9, 2): ((40, "a!a"), (5, "العنوان التاريخ الاسباب الاسماء")),
    (9, 3): ((5, "Stop, thief!  Stop, thief!  Catc"), (4, "النوع الطراز الماركة الاسم المقد")),
    (9, 4): ((9, "To excel at tennis, football, or"), (3, "واحد<اثنين<ثلاثة<اربعة<خمسة<ستة<")),
    (9, 5): (None, (3, "واحد+اثنين=ثلاثة+ثلاثة=ستة+ستة=ا")),
    (10, 1): ((13, "- Do you know? I was the first a"), (7, "الرضى من الله تعالى والغنى عن ال")),
    (10, 2): ((26, "ki("), (4, "مؤسسة صالح اخوان-بناية عبوشي-شار")),
    (10, 3): ((12, "Rome (it is said) was not built"), (23, "(و) (ر")),
    (10, 4): (None, (6, "ثلاث لا غرابة معها : مجانية الري")),
    (10, 5): (None, (6, "غضب أعرابي على ولده. فقال له: أت")),
    (11, 1): ((68, "aq1"), (69, "شض1")),
    (11, 2): ((80, "de4"), (104, "يث4")),
    (11, 3): ((8, "10.000*20.000*30.000*40.000*50.0"), (4, "123 321 654 456 987 789 198 098")),
    (11, 4): ((8, ""), (3, "150 بئر 789 ذئب 456 فأر 134 طائر")),
    (11, 5): (None, (4, "")),
    (12, 1): ((111, "are"), (34, "قفيس")),
    (12, 2): ((10, "Try to put those old ropes in th"), (7, "كمين مكين متين سمين سكين سنين كت")),
    (12, 3): (None, (4, "الجهل العقل الجمل الجبل الحمل ال")),
    (12, 4): (None, (8, "لذيذ مذهب ذليل قذف ذكر حذف انقذ")),
    (12, 5): (None, (6, "الالحاد الالمام الالعاب المالي ا")),
    (13, 1): ((7, "No, John is one month older than"), (6, "كلية التجارة، كلية الزراعة، كلية")),
    (13, 2): ((14, "When every question had been ans"), (6, "اللؤلؤ، البؤبؤ، الكؤوس، الرؤوس،")),
    (13, 3): (None, (7, "خذ الأشياء على واقعها، وتحدث عن")),
    (13, 4): (None, (7, "إن الذي لا يعرف، ولا يعرف أنه لا")),
    (13, 5): (None, (6, "قيل إن الشعبي مر يوما بإبل قد فش")),
    (14, 1): ((11, "All kind of wild plants do not g"), (3, "سوف نقدم سوف نرسل سوف نبعث سوف ن")),
    (14, 2): ((13, "Conditions in the world today ar"), (6, "نشكر سعادتك جزيل الشكر لتفضلكم ب")),
    (14, 3): (None, (8, "بعد التحية،")),
    (14, 4): (None, (6, "ثلاثة لا يجتمعون: لا مروءة للكذو")),
    (14, 5): (None, (5, "قال الحكماء: جالسوا العقلاء أصدق")),
    (15, 1): ((1, "Every letter should be a credit"), (1, "حديث أبي سعيد، قال: قال رسول الل")),
    (15, 2): ((1, "You often hear people in England"), (1, "صدر المرسوم الملكي رقم م/23 بتار")),
    (15, 3): (None, (1, "خرج أبو شروان للصيد فأدركه العطش")),
    (15, 4): (None, (1, "لتجنب حدوث صدمة كهربائية، يجب عد")),
    (15, 5): (None, (1, "من الممكن نسخ مستند، أو مجلد، أو")),
}

HELP_PAGES = 11
RECOMMENDATION_PAGES = 6

# What the lesson note's window and the main window say of a lesson.
LESSON_NOTE_TITLE = ("الدرس رقم: (", " ) ")

STOP_NOTES = (
    "ما الفائدة إذن من المجهود الذي بذلته " "زن أورتشارد" " ؟",
    "أتيت ... رأيت ..."
    "\r"
    "ولكني لم أنتصر ...",
    "لا تتكاسل، فلقد بدأت بالكاد بتحقيق بعض التقدم ...",
    "نذكرك أن إيقاف التمرين قبل نهايته لا يؤثر على النتيجة التي سبق"
    "\r"
    "تسجيلها.",
    "بكل سرعة ..."
    "\r"
    "فما زال لدي الكثير من العمل ...",
    "ماذا ؟"
    "\r"
    "ألم تذهب بعد لشرب الشاي في الغرفة المجاورة؟",
    "قد بدأت تشنجات الأصابع ...",
    "ماذا ؟"
    "\r"
    "ألم يعجبك هذا التمرين ؟",
    "هل بإمكانك القول للشخص المزعج الذي يحدث كل هذه الضوضاء"
    "\r"
    "أني أود التركيز على عملي بكل هدوء ...",
    "حذار! إنك تفرط باستخدام الأمر (توقيف)...",
)
