"""What marks are worth, when a lesson is passed, and the wording around the student.

In the messages {name}, {lesson} and so on are filled in; "\\r" stands for a new line.
"""

# Standard marks of exercises 1 to 5, Arabic then English; * marks a speed bonus.
STANDARD_MARKS = (
    ("100 50 100 100 200", "100 50 100 100 200"),
    ("50 100 100 100 200", "100 50 100 100 200*"),
    ("100 50 100 100 200*", "100 100 100 50 200*"),
    ("100 50 100 100 200*", "100 100 100 100 100*"),
    ("100 50 100 100* 200*", "100 50 100 100* 200*"),
    ("100 50 100 100* 200*", "100 50 100 100* 200*"),
    ("100 50 100 100 200*", "100 50 100 100 200*"),
    ("100 50 100 100 200*", "50 100 50 300 0"),
    ("100 50 100 50 50", "100* 50 100 100* 0"),
    ("100* 50 100 100 200*", "200* 100 100* 0 0"),
    ("50 50 100 50 100*", "50 50 100 100* 100"),
    ("100* 100* 100* 100* 100*", "100* 200* 0 0 0"),
    ("100* 200* 200* 200* 200*", "300* 500* 0 0 0"),
    ("100* 100* 100* 100* 200*", "200* 300* 100 100 100"),
    ("100* 100* 100* 100* 100*", "200* 500* 0 0 0"),
)

PASSING_MARKS = {9: 300, 11: 300, 13: 800}
PASSING_MARK_ELSEWHERE = 500

# English exercises that never score, whatever their standard mark.
NEVER_SCORING = frozenset(
    [(lesson, 3) for lesson in range(12, 16)]
    + [(lesson, 4) for lesson in (10, 12, 13, 14, 15)]
    + [(lesson, 5) for lesson in range(8, 16)]
)

# Grade, lowest and highest total. Grade 1 is the best and grade 2 the least.
GRADES_ARABIC = ((2, 250, 400), (3, 401, 500), (4, 501, 800), (1, 801, 1000))
GRADES_ENGLISH = ((2, 350, 500), (3, 501, 800), (4, 801, 1050), (1, 1051, 1400))
GRADE_LETTERS = {1: "A -", 4: "B -", 3: "C -", 2: "D -"}

DIPLOMA_DATE = "Date: "
DIPLOMA_COURSES = (
    ("courseDoneArabicMac", "gradeArabicMac", "- Arabic Mac Typing: "),
    ("courseDoneEnglishMac", "gradeEnglishMac", "- English Mac Typing: "),
    ("courseDoneArabicWin", "gradeArabicWin", "- Arabic Win Typing: "),
    ("courseDoneEnglishWin", "gradeEnglishWin", "- English Win Typing: "),
)
DIPLOMA_LAST_BEHIND_OTHERS = " - English Win Typing: "

# The result's window: title, accuracy, bonus, mark; English, Arabic.
RESULT_TEXTS = (
    ("Result", "Resolution Typing Mark: ", "Speed Bonus:            ", "Your Mark:             "),
    ("النتيجة", "علامة دقة الطباعة:   ", "مكافأة للسرعة:      ", "علامتك لهذا التمرين:  "),
)
RESULT_NEXT_LESSON = (
    "Your result was good, and allowed you to move to the next lesson.",
    "إن نتيجتك جيدة وتتيح لك الانتقال إلى الدرس التالي.",
)
RESULT_DIPLOMA = (
    "Your result was good, and allowed you to get your diploma, "
    "select View Diploma from File Menu.",
    "إن نتيجتك جيدة وتتيح لك الحصول على شهادة دبلوم. اختر عرض شهادة التخرج من قائمة ملف.",
)

# The welcome: English, Arabic.
LANGUAGE_NAMES = ("الإنجليزي", "العربي")
WELCOME_SUGGESTION = (
    "Welcome {name}\r\rYou are now in the Lesson No: {lesson} {title}\rI Suggest to "
    "repeat exercise no: {exercise}.\rBecause it's score is the lowest.",
    "أهلا بك يا {name}.\r\rأنت الآن في الدرس: {lesson} {title}\rأقترح عليك تكرار التمرين "
    "{language} ورقمه: {lesson}-{exercise}.\rإن علامته أقل من علامات باقي التمارين.",
)
WELCOME_NOTHING = (
    "KeyFluent Recommends for today:\r\rI don't like to give any recommendations...",
    "توصية كي فلونت لهذا اليوم:\r\rلا أرغب بإعطاء أية وصية لهذا اليوم.",
)
WELCOME_WISHES = (
    "I hope you will be fine, {name}, in this day, as you know the life is beautiful, "
    "KeyFluent came here to help you finishing your wrok friendly.",
    "آمل أن تكون بكامل الصحة يا {name} في هذا اليوم، فالحياة جميلة،\rإضافة إلى أن كي "
    "فلونت موجود هنا ليساعدك على العمل بكل بهجة وسرور!",
)
WELCOME_READ_MENU = (
    "Befor going on the {title}, Lesson No: {lesson}\r\rI suggest to read the {menu} "
    "Menu.",
    "قبل بدء هذا الدرس رقم: {lesson} {title}\r\rأقترح عليك قراء قائمة الأوامر {menu}.",
)
MENU_RECOMMENDATION = ("Recommendation", "توصية")
MENU_HELP = ("Help", "تعليمات")
PRAISE_BOTH = (
    "Welldone!! You have achieved 80% or more in all exercises!",
    "مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع تمارين هذا الدرس!",
)
PRAISE_ARABIC = (
    "Welldone! You have achieved 80% or more in all Arabic exercise.",
    "مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع التمارين العربية في هذا الدرس.",
)
PRAISE_ENGLISH = (
    "Welldone! You have achieved 80% or more in all English exercise.",
    "مرحى لك! لقد حصلت على نتيجة 80% أو أكثر في جميع التمارين الإنجليزية هذا الدرس.",
)

# The farewell, caption and message: English, Arabic.
DEFAULT_NAMES = ("Friend", "صديقي")
PLAIN_FAREWELL = (
    ("Good Bye", "See you {name}\ras soon as possible, Insha Allah."),
    ("مع السلامة", "إلى اللقاء يا {name}\rوبأقرب وقت ممكن، إن شاء الله..."),
)
FAREWELLS = (
    (
        (
            "Good Bye",
            "It's pleased Keyfluent to greet you, {name}.\rAnd wish you a good health for ever.",
        ),
        ("مع السلامة", "يسر كي فلونت أن يحييك يا {name}\r ويتمنى لك كامل الصحة والعافية."),
    ),
    (
        ("Good Bye", "See you, {name}.\rNext time we will start with the lesson: {lesson}{title} "),
        ("مع السلامة", "إلى اللقاء يا {name}.\rالمرة القادمة: سنبدأ بالدرس {lesson}{title} "),
    ),
    (
        ("See you", "I hope you did not get bored!\rSee you as soon as possible and you are fine"),
        ("إلى اللقاء", "آمل ألا تكون قد ضجرت يا {name}.\r\rإلى اللقاء قريبا وأنت بأحسن حال."),
    ),
    (
        ("See you", "I am so sorry I will miss you!\r\rBut I was harmonized with you"),
        ("إلى اللقاء", "يؤسفني جدا أن نفترق بهذه السرعة.\r\rفلقد كنا بكامل الانسجام سوية."),
    ),
    (
        (
            "See you",
            "You don't like KeyFluent!, don't you?\rI hope you come back next time, {name}.",
        ),
        ("إلى اللقاء", "ألم يعجبك كي فلونت؟ \rآمل عودتك ثانية يا {name} على الرغم من ذلك."),
    ),
)

# The chooser: English, Arabic.
CHOOSER_TITLE = ("Lesson No: ({lesson} ) {title}", "الدرس رقم : ({lesson} ) {title}")
CHOOSER_BUTTON = ("{lesson} -{exercise}", "{lesson} - {exercise}")
CHOOSER_PASSING_MARK = ("Passing Mark: ", "علامة النجاح : ")
CHOOSER_SUM = ("Your Score:", "مجموعك :      ")

PREFERENCES_FILE = "KeyFluent Preference.prf"
STUDENTS_FOLDER = "Students"
STUDENT_ENDING = ".W"
