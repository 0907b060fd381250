#!/usr/bin/env python3
"""Macht aus Berichtsdateien von Quendal eine Tabelle für die Tabellenkalkulation.

    python3 berichte_nach_csv.py [--alles] DATEI... > ergebnisse.csv

Eine Zeile je Ergebnis, mit --alles auch die Zwischenstände. Zeilen, die kein Bericht sind, etwa
weil eine Datei beim Kopieren abgeschnitten wurde, werden auf der Standardfehlerausgabe genannt.
"""
import csv
import io
import json
import sys

KOPF = ["Zeit", "Name", "Aufgabe", "Punkte", "Fehler", "Punktzahl", "Note", "Note in Worten"]
VOR_DER_AUFGABE = "Morvik // Quendal - "


def zeile(bericht):
    zeit = bericht["time"][:19].replace("T", " ")
    aufgabe = bericht["task"].removeprefix(VOR_DER_AUFGABE)
    werte = [zeit, bericht["learner"], aufgabe] + [
        bericht[feld] for feld in ("points", "errors", "score", "mark", "markText")]
    # Ein Name wie "=2+3" soll in der Tabelle ein Name bleiben und keine Formel werden.
    return ["'" + wert if isinstance(wert, str) and wert[:1] in "=+-@" and wert else wert
            for wert in werte]


def berichte(name):
    with open(name, encoding="utf-8") as datei:
        for nummer, text in enumerate(datei, 1):
            try:
                bericht = json.loads(text)
                yield bericht["event"], zeile(bericht)
            except (ValueError, KeyError, TypeError, AttributeError):
                print(f"{name}, Zeile {nummer}: kein Bericht", file=sys.stderr)


def main(worte):
    alles = "--alles" in worte
    dateien = [wort for wort in worte if wort != "--alles"]
    if not dateien:
        sys.exit(__doc__)
    # Die Marke am Anfang sagt der Tabellenkalkulation, dass Umlaute in UTF-8 stehen.
    ausgabe = io.TextIOWrapper(sys.stdout.buffer, encoding="utf-8-sig", newline="")
    tabelle = csv.writer(ausgabe, delimiter=";", lineterminator="\r\n")
    tabelle.writerow(KOPF)
    for datei in dateien:
        for ereignis, werte in berichte(datei):
            if alles or ereignis == "result":
                tabelle.writerow(werte)
    ausgabe.flush()


main(sys.argv[1:])
