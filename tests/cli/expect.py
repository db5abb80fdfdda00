# SPDX-License-Identifier: MIT
"""What the tests of the tool share: expected files, and the examples of the help."""
import json
import os
import re

from tool import expected_file

ENDINGS = os.environ.get("CALTOFAL_TEST_FORMS", ".txt .json").split()
# An emulated machine has no locales: what is beyond ASCII is shown as bytes there.
ASCII_ALONE = os.environ.get("CALTOFAL_TEST_LOCALES") == "none"
FORMS = [form for form in ((".txt", []), (".json", ["--json"])) if form[0] in ENDINGS]


def every_page(pages):
    for gateway, commands in pages.items():
        for command in commands:
            for ending, options in FORMS:
                yield gateway, command, ending, ["-g", gateway, *command.split(), *options]


def write_pages(tool, pages, notes=False):
    for gateway, command, ending, words in every_page(pages):
        result = tool.run(*words)
        if result.code != 0 or (result.err and not notes):
            raise SystemExit(f"{' '.join(words)}: exit code {result.code}: {result.err}")
        path = expected_file(gateway, command, ending)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(result.out)


def check_pages(case, tool, pages, notes=False):
    for gateway, command, ending, words in every_page(pages):
        with case.subTest(" ".join(words)):
            result = tool.run(*words)
            with open(expected_file(gateway, command, ending), "rb") as file:
                wanted = file.read()
            if ASCII_ALONE and not wanted.isascii():
                case.assertTrue(result.out.isascii())
            else:
                case.assertEqual(result.out.decode(), wanted.decode())
            case.assertEqual(result.code, 0)
            case.assertRegex(result.err, r"^(caltofal: .+\n)*$" if notes else "^$")
            if ending == ".json":
                json.loads(result.out)


def commands(tool, *words):
    """All nouns and verbs below `words`, as lists of words."""
    text = tool.run(*words, "--help").out.decode()
    below = re.findall(r"^  ([a-z0-9-]+)  ", text.split("Subcommands:")[1], re.M) if "Subcommands:" in text else []
    for word in (word for word in below if word != "help"):
        yield [*words, word]
        yield from commands(tool, *words, word)


def check_examples(case, tool, chosen, folder):
    """Runs the examples of the help of all commands whose words `chosen` accepts, in one folder, so that a survey finds
    what a scan has left; how many commands there were."""
    count = 0
    for words in commands(tool):
        if not chosen(" ".join(words)):
            continue
        count += 1
        text = tool.run(*words, "--help").out.decode()
        examples = re.findall(r"^  caltofal (.+)$", text.split("Examples:")[1].replace(" \\\n", " "), re.M)
        case.assertTrue(examples, words)
        for example in examples:
            with case.subTest(example):
                result = tool.run(*example.split(), folder=folder, stdin=b"@capture\n")
                case.assertEqual(result.code, 0, result.err)
                case.assertRegex(result.err, r"^(caltofal: .+\n)*$")
    return count
