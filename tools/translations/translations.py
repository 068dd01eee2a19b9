#!/usr/bin/env python3
"""Keeps the translations in step with the English texts.

Usage: translations.py [--check]

Writes resources/translations/tavi_LANGUAGE.ts of every language anew: every key in the order of the English file, and
behind those what formulas and charts are said in and what is said about values, each with its English text as source. What is missing, and what
translates an English text that has changed since, becomes unfinished; what is in English no more goes.

With --check it writes nothing and says what is wrong with the files and with the translated parts of the package. It
ends with 1 for a fault, and with 77, CTest's word for a skipped test, where texts only await their translation: until
then they are shown in English.
"""

import re
import sys
import xml.etree.ElementTree as xml
from pathlib import Path
from typing import NamedTuple
from xml.sax.saxutils import escape

ROOT = Path(__file__).resolve().parents[2]
FOLDER = ROOT / "resources/translations"
PACKAGING = ROOT / "packaging"

# What is rightly the same as in English: names everywhere, and words of one language.
SAME_EVERYWHERE = {"Tavi Solver", "OK", "Pi", "mathPi", "videoReady"}
SAME = {
    "de": {"Exponent", "asSystem", "mathPlus", "mathMinus", "chartQuadrant"},
    "es": {"Base", "error", "mathFactorial"},
    "fr": {"exactButton", "Base", "chartQuadrant", "introduction", "mathPlus", "menuButton", "sharingFileName"},
    "id": {"mathMinus", "menuButton"},
    "pt": {"Base", "menuButton"},
}


class Text(NamedTuple):
    source: str
    translation: str
    is_finished: bool = True


def path_of(language):
    return FOLDER / f"tavi_{language}.ts"


def read(language):
    """The texts of a language's file by key; none where there is no file."""
    if not path_of(language).exists():
        return {}
    texts = {}
    for message in xml.parse(path_of(language)).iter("message"):
        translation = message.find("translation")
        texts[message.get("id")] = Text(message.findtext("source") or "", translation.text or "", not translation.get("type"))
    return texts


def phrases():
    """English by key, as the sources hold what formulas and charts are said in."""
    phrase = re.compile(r'\{"((?:math|chart|exact|rule)[A-Z]\w*)",\s*((?:"[^"]*"\s*)+)\}')
    folders = ("typeset", "charts", "exact")
    sources = [path for folder in folders for path in sorted((ROOT / "src" / folder).rglob("*.[ch]*"))]
    found = [match.groups() for path in sources for match in phrase.finditer(path.read_text())]
    phrases = {key: "".join(re.findall(r'"([^"]*)"', words)) for key, words in found}
    # What is nothing but a place needs no words.
    return {key: words for key, words in phrases.items() if words != "%1"}


def write(language, texts):
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>", f'<TS version="2.1" language="{language}">', "<context>",
             "    <name></name>"]
    for key, text in texts.items():
        mark = "" if text.is_finished else ' type="unfinished"'
        lines += [f'    <message id="{escape(key)}">', f"        <source>{escape(text.source)}</source>",
                  f"        <translation{mark}>{escape(text.translation)}</translation>", "    </message>"]
    path_of(language).write_text("\n".join([*lines, "</context>", "</TS>", ""]))


def refreshed(english, key, text):
    if text is None or not text.translation:
        return Text(english, "", False)
    # A source that is empty or the key was written by hand, along with the translation.
    return Text(english, text.translation, text.is_finished and text.source in (english, key, ""))


def places(text):
    """What is put in at run time, in the order of the alphabet. A percent sign beside that would be taken for one."""
    return sorted(re.findall(r"%\d?|§[a-z]*", text))


def is_waiting(english, key, text):
    return text is None or not text.is_finished or text.source not in (english, key, "")


def faults_of(language, key, english, translation):
    if not translation:
        yield "is empty"
    if places(translation) != places(english):
        yield f"holds {places(translation)} where English holds {places(english)}"
    if translation == english and key not in SAME_EVERYWHERE | SAME.get(language, set()):
        yield f'is the same as in English: "{english}"'


def package_faults(language):
    """What of the desktop file, the metainfo and the manual page lacks the language."""
    desktop = next(PACKAGING.glob("*.desktop")).read_text()
    for field in re.findall(r"^(GenericName|Comment|Keywords|Name)=", desktop.split("[Desktop Action")[0], re.MULTILINE):
        if field != "Name" and f"\n{field}[{language}]=" not in desktop:
            yield f"the desktop file has no {field}[{language}]"
    words = read(language)
    for action in re.findall(r"^\[Desktop Action (\w+)\]", desktop, re.MULTILINE):
        section = desktop.split(f"[Desktop Action {action}]")[1].split("\n[")[0]
        if f"\nName[{language}]={words[action].translation}\n" not in section:
            yield f"the desktop file's action {action} has another name than its key"
    lang = "{http://www.w3.org/XML/1998/namespace}lang"
    metainfo = xml.parse(next(PACKAGING.glob("*.metainfo.xml")))
    for tag in ("summary", "p", "li", "developer_name", "caption"):
        elements = list(metainfo.iter(tag))
        if sum(e.get(lang) is None for e in elements) != sum(e.get(lang) == language for e in elements):
            yield f"the metainfo lacks a <{tag}> in {language}"
    if not re.search(rf"^{language} \S", (PACKAGING / "summaries").read_text(), re.MULTILINE):
        yield f"packaging/summaries has no line for {language}"


def main(is_check):
    languages = re.search(r"set\(TAVI_LANGUAGES ([a-z ]+)\)", (FOLDER / "languages.cmake").read_text()).group(1).split()
    texts = read("en")
    english = {key: text.translation for key, text in texts.items()} | phrases()
    if not is_check:
        write("en", {key: Text(text.translation, text.translation) for key, text in texts.items()})
    strangers = {path.stem.removeprefix("tavi_") for path in FOLDER.glob("*.ts")} - set(languages)
    faults = [f"{language}: the language is not in the list" for language in strangers]
    waiting = []
    for language in set(languages) - {"en"}:
        texts = read(language)
        if not is_check:
            texts = {key: refreshed(words, key, texts.get(key)) for key, words in english.items()}
            write(language, texts)
        for key, words in english.items():
            text = texts.get(key)
            if is_waiting(words, key, text):
                waiting.append(f"{language}: {key} awaits its translation: {words}")
            else:
                faults += [f"{language}: {key} {fault}" for fault in faults_of(language, key, words, text.translation)]
        faults += [f"{language}: {key} is not in English" for key in texts.keys() - english.keys()]
        faults += [f"{language}: {fault}" for fault in package_faults(language)]
    for line in sorted(faults) + sorted(waiting):
        print(line)
    return (1 if faults else 77 if waiting else 0) if is_check else 0


if __name__ == "__main__":
    sys.exit(main("--check" in sys.argv[1:]))
