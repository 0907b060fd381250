"""What the program says to a learner, on several forms alike."""

REMINDER = (
    "Das ist nicht richtig! Überprüfe Deine Eingaben! "
    "Beachte die Informationen rechts an der Seite!"
)
REMINDER_IN_LINES = (
    "Das ist nicht richtig!\nÜberprüfe Deine Eingaben!\n"
    "Beachte die Informationen rechts an der Seite!"
)
HELP_QUESTION = "Das ist leider immer noch falsch! Soll ich Dir helfen?"
NUMBERS_QUESTION = "Das ist leider immer noch falsch! Soll ich Dir die Zahlen vorgeben?"
UNREADABLE = "Deine Eingabe enthält unzulässige Zeichen!"
POINT_PENDING = "Nach der Vorgabe soll dieser Punkt gerechnet werden!"
DEMO_QUESTION = (
    "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' "
    "ansehen sollte. Wollen Sie das Zutropfen abbrechen?"
)
POINT_DONE = "Diesen Titrationspunkt hast Du geschafft! Es ist der {}. Punkt"
CURVE_MISSING = (
    "Die Datei '{}' wurde nicht gefunden - zum Vergleich Deiner Werte kann ich daher leider nur "
    "die Standard-pH-Kurver zu Rate ziehen!"
)
MARKS = (  # least score, mark, word, sound
    (900, 1, "Sehr gut", "result_good"),
    (800, 2, "Gut", "clapping"),
    (650, 3, "Befriedigend", "correct"),
    (400, 4, "Ausreichend", "say"),
    (200, 5, "Mangelhaft", "wrong"),
    (float("-inf"), 6, "Ungenügend", "result_bad"),
)


def quoted(text):
    """A word of a script line, whatever is in it."""
    text = text.replace("\\", "\\\\").replace('"', '\\"')
    return '"' + text.replace("\n", "\\n") + '"'
