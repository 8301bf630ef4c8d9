#!/usr/bin/env python3
"""makeCatalogue.py FOLDER: fills FOLDER with a catalogue of 10,000 German messages, made by GNU
gettext and laid out as gettext's users expect it.

de/LC_MESSAGES/labels_de.mo   the catalogue, in UTF-8
identifiers                   its identifiers, one a line, in a random order"""
import pathlib
import random
import subprocess
import sys

MESSAGES = 10000
WORDS = {
    "dose": "Dosis", "for": "für", "pressure": "Drücke", "patient": "Patient", "the": "der",
    "heart": "Herz", "rate": "Häufigkeit", "infusion": "Infusion", "pump": "Förderpumpe",
    "alarm": "Alarm", "volume": "Menge", "over": "über", "minutes": "Minuten", "blood": "Blut",
    "oxygen": "Sauerstoff", "set": "wählen", "upper": "obere", "lower": "untere", "limit": "Größe",
    "of": "von", "airway": "Atemwege", "check": "prüfen", "temperature": "Körperwärme",
}

folder = pathlib.Path(sys.argv[1])
catalogue = folder / "de" / "LC_MESSAGES" / "labels_de.mo"
catalogue.parent.mkdir(parents=True, exist_ok=True)

random.seed(1)
messages = {}
while len(messages) < MESSAGES:
    words = random.choices(list(WORDS), k=random.randint(2, 8))
    messages.setdefault(" ".join(words).capitalize(), " ".join(WORDS[word] for word in words))
po = 'msgid ""\nmsgstr "Content-Type: text/plain; charset=UTF-8\\n"\n'
po += "".join(f'msgid "{identifier}"\nmsgstr "{text}"\n' for identifier, text in messages.items())
subprocess.run(["msgfmt", "-o", catalogue, "-"], input=po.encode(), check=True)

identifiers = list(messages)
random.shuffle(identifiers)
(folder / "identifiers").write_text("\n".join(identifiers) + "\n")
