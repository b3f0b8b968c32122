"""The record that all windows share, and the virtual machine under the console."""

from values import Open, from_units, single

STRING, BOOLEAN = "string", "boolean"
BYTE, WORD, LONG = (0, 255), (-32768, 32767), (-(2**31), 2**31 - 1)

FIELDS = {
    "appFolder": STRING,
    "studentName": STRING,
    "studentNameCopy": STRING,
    "keyboardKind": LONG,
    "exerciseNo": BYTE,
    "lessonNo": BYTE,
    "lastLessonWin": BYTE,
    "lastLessonMac": BYTE,
    "reachedLessonMac": BYTE,
    "reachedLessonWin": BYTE,
    "arabicInterface": BOOLEAN,
    "arabicExercise": BOOLEAN,
    "sessionRun": BOOLEAN,
    "trueKeyColour": LONG,
    "errKeyColour": LONG,
    "fontSize": LONG,
    "colouredHands": BOOLEAN,
    "stopCount": LONG,
    "lessonNoteText": STRING,
    "optKeyCaps": BOOLEAN,
    "optHands": BOOLEAN,
    "optCounter": BOOLEAN,
    "optClock": BOOLEAN,
    "optSound": BOOLEAN,
    "exerciseMark": LONG,
    "accuracyMark": LONG,
    "speedBonus": WORD,
    "recommendPage": BYTE,
    "helpPage": BYTE,
    "helpMode": BOOLEAN,
    "leaveNoSave": BOOLEAN,
    "leaveConfirmed": BOOLEAN,
    "inExercise": BOOLEAN,
    "arabicAnagram": BOOLEAN,
    "englishAnagram": BOOLEAN,
    "freeText": BOOLEAN,
    "freeTextChars": STRING,
    "anagramLanguage": BOOLEAN,
    "loggedOut": BOOLEAN,
    "quitting": BOOLEAN,
    "courseDoneArabicMac": BOOLEAN,
    "courseDoneEnglishMac": BOOLEAN,
    "courseDoneArabicWin": BOOLEAN,
    "courseDoneEnglishWin": BOOLEAN,
    "gradeArabicMac": BYTE,
    "gradeEnglishMac": BYTE,
    "gradeArabicWin": BYTE,
    "gradeEnglishWin": BYTE,
    "blankText": STRING,
}

# Stands for the folder in which the console was started.
START_FOLDER = "\ue000start folder"


class Context:
    def __init__(self):
        for name, kind in FIELDS.items():
            setattr(self, name, {STRING: "", BOOLEAN: False}.get(kind, 0))
        self.studentTable = {number: [0] * 10 for number in range(1, 32)}
        self.appFolder = START_FOLDER
        self.lessonNo = self.exerciseNo = 1
        self.keyboardKind = 192
        self.fontSize = 12
        self.errKeyColour = 255

    def record(self, number):
        """A record of the student's table; None beside the table."""
        return self.studentTable.get(number)


class Machine:
    """Time of day, date, chance, Caps Lock, and what the core asked of the platform."""

    DAY = 86400000

    def __init__(self):
        self.time_of_day = 36000000
        self.clock = 0
        self.date = "01-31-2026"
        self.caps_lock = False
        self.queue = []
        self.events = []

    def now(self):
        """Seconds since midnight as a 32-bit float."""
        return single(self.time_of_day / 1000)

    def advance(self, moment):
        """Lets the clock reach a moment; the time of day goes along, past midnight back to 0."""
        self.time_of_day = (self.time_of_day + moment - self.clock) % self.DAY
        self.clock = moment

    def draw(self):
        """The next queued number, None where the generator would answer."""
        return self.queue.pop(0) if self.queue else None

    def between(self, low, high):
        """All numbers that the next draw may give."""
        number = self.draw()
        if number is None:
            return list(range(low, high + 1))
        return [min(max(low + int(number * (high - low + 1)), low), high)]

    def tell(self, *events):
        self.events.extend(events)

    def play(self, player, *commands):
        self.events.extend(f"{player} {command}" for command in commands)


class Disk:
    """The files below the folder of the console: a file is bytes, a folder is None."""

    LONGEST_NAME, LONGEST_PATH = 255, 4095

    def __init__(self):
        self.entries = {}

    def _walk(self, folder, names):
        """The key of a path and what is wrong with it: None, "missing" or "other"."""
        if folder == START_FOLDER:
            parts = []
        else:
            if folder.startswith("/") or not folder or ".." in folder.split("/"):
                raise Open("a folder elsewhere")
            parts = [part for part in folder.split("/") if part not in ("", ".")]
        parts = [from_units(part) for part in (*parts, *names)]
        for part in parts:
            if "/" in part or "\0" in part:
                return None, "other"
        if len("/".join(parts).encode("utf-8")) > self.LONGEST_PATH:
            return None, "other"
        for depth in range(1, len(parts)):
            if len(parts[depth - 1].encode("utf-8")) > self.LONGEST_NAME:
                return None, "other"
            key = "/".join(parts[:depth])
            if key not in self.entries:
                return None, "missing"
            if self.entries[key] is not None:
                return None, "other"
        if len(parts[-1].encode("utf-8")) > self.LONGEST_NAME:
            return None, "other"
        return "/".join(parts), None

    def find(self, folder, *names):
        """A path's key, and "file", "folder", "missing", "no folder" or "other"."""
        key, trouble = self._walk(folder, names)
        if trouble == "missing":
            return None, "no folder"
        if trouble:
            return None, "other"
        if key not in self.entries:
            return key, "missing"
        return key, "folder" if self.entries[key] is None else "file"
