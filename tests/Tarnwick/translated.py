"""The window in other languages than English: what its texts are called there, and a language of its own for tests.

The pseudo-language has every text in brackets, with accents and 40 % longer: what appears outside of brackets does not go through
a catalogue, and what is cut has no room for real languages."""

import pathlib
import re
import subprocess
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import escape

import driver

CATALOGUES = pathlib.Path(__file__).resolve().parents[2] / "resources" / "translations"
LANGUAGES = sorted(path.stem.removeprefix("tarnwick_") for path in CATALOGUES.glob("tarnwick_*.ts"))
ACCENTS = str.maketrans("AEIOUYaeiouycnsz", "ÅËÎÖÜÝàéîöüýçñšž")


def messages(language):
    """Context, source, disambiguation and forms of each text of a catalogue."""
    for context in ElementTree.parse(CATALOGUES / f"tarnwick_{language}.ts").getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
            yield context.findtext("name"), message.findtext("source"), message.findtext("comment") or "", forms


def pseudo(text):
    """Keeps what is filled in later and a menu's access key."""
    parts = re.split(r"(%L?[0-9n]|&\w|\n)", text)
    accented = "".join(part if index % 2 else part.translate(ACCENTS) for index, part in enumerate(parts))
    return f"[{accented}{'~' * round(0.4 * len(text))}]"


def write_pseudo_catalogue(lrelease, path, language="de"):
    """`language` gives the direction and the plural forms."""
    lines = [f'<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS><TS version="2.1" language="{language}">']
    for context, source, comment, forms in messages(language):
        words = escape(pseudo(source))
        numerus = ""
        if len(forms) > 1:
            numerus, words = ' numerus="yes"', f"<numerusform>{words}</numerusform>" * len(forms)
        lines.append(f"<context><name>{context}</name><message{numerus}><source>{escape(source)}</source>"
                     f"<comment>{escape(comment)}</comment><translation>{words}</translation></message></context>")
    source = path.with_suffix(".ts")
    source.write_text("\n".join(lines) + "</TS>")
    subprocess.run([lrelease, "-silent", source, "-qm", path], check=True)


def words_of(language):
    """What an English text without fillings is called, by whichever context has it first."""
    found = {}
    for _, source, _, forms in messages(language):
        found.setdefault(source, forms[-1])
    return lambda text: found.get(text, text).replace("&", "")


class Window(driver.Window):
    """Asked for by the English names of things."""

    def __init__(self, program, *arguments, words, env=None):
        self.words = words
        super().__init__(program, *arguments, env=env)

    def look(self, name, role=None):
        return super().look(self.words(name), role)
