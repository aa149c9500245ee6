#!/usr/bin/env python3
"""Writes the manual pages from the command table that zek-describe dumps.

    make-man.py COMMANDS.json OUTDIR

zekcli.1 (and hostcli.1, which points to it) gives the overview, the keywords common to every command, exit
status, files, environment and examples; zekcli-<action>-<item>.1 gives one
command, with the same help texts that "-help" and "help cli -genhelpdoc"
show. Pages are written gzip-compressed with no time stamp, as Debian
installs them, so a build is byte-for-byte repeatable.
"""

import gzip
import json
import os
import re
import sys

SOURCE = "zekcli"
MANUAL = "zekcli manual"


def escape(text):
    """Plain text as roff: backslashes and leading dots or quotes neutralised."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    lines = []
    for line in text.split("\n"):
        if line.startswith((".", "'")):
            line = "\\&" + line
        lines.append(line)
    return "\n".join(lines)


def verbatim(text):
    """A block shown as the help shows it: tabs become indentation."""
    text = text.strip("\n")
    if not text.strip():
        return ""
    body = escape(text.expandtabs(8))
    return ".nf\n.RS 2\n" + body + "\n.RE\n.fi\n"


def paragraphs(text):
    """Running text, one roff paragraph per blank-line separated block."""
    blocks = [b.strip() for b in re.split(r"\n\s*\n", text.strip()) if b.strip()]
    return "".join(".PP\n" + escape(" ".join(l.strip() for l in b.split("\n"))) + "\n" for b in blocks)


# A word that cannot stand in a file name gets one that can.
FILE_WORDS = {"?": "qhelp"}


def page_name(cmd):
    return "zekcli-%s-%s" % (FILE_WORDS.get(cmd["action"], cmd["action"]), cmd["item"])


def header(name, title):
    return '.TH %s 1 "" "%s" "%s"\n.SH NAME\n%s \\- %s\n' % (
        name.upper(), SOURCE, MANUAL, escape(name), escape(title))


def section(title, body):
    return ".SH %s\n%s" % (title, body) if body else ""


def keyword_form(keyword):
    value = {"required": "=value", "optional": "[=value]"}.get(keyword["value"], "")
    return "-" + keyword["name"] + value


def accepted_keywords(cmd):
    """The keywords the command is declared with, besides the common ones."""
    forms = [keyword_form(k) for k in cmd["keywords"] if k["required"] != "internal"]
    if not forms:
        return ""
    return paragraphs("Keywords this command accepts (each also with / in place of -): " +
                      ", ".join(forms) + ".")


def command_page(cmd, table):
    words = "%s %s" % (cmd["action"], cmd["item"])
    title = cmd["title"].strip() or words
    text = header(page_name(cmd), title.lower() if title.isupper() else title)
    text += section("SYNOPSIS", ".B hostcli \\-zek %s\n.br\n" % escape(words) + verbatim(cmd["syntax"]))
    text += section("DESCRIPTION", paragraphs(cmd["description"]))
    text += section("KEYWORDS", verbatim(cmd["modifiers"]) + accepted_keywords(cmd))
    text += section("NOTES", verbatim(cmd["notes"]))
    text += section("EXAMPLES", verbatim(cmd["examples"]))
    result = cmd["result"].strip()
    text += section("RESULT FILE", paragraphs(
        "With -result the command appends one record to the result file:") +
        verbatim(table["result_layout"]) + (verbatim(result) if result else ""))
    text += section("SEE ALSO", ".BR zekcli (1),\n.BR zekcli\\-result (1)\n")
    return text


def overview_page(table):
    commands = table["commands"]
    text = header("zekcli", "manage caching Fibre Channel host bus adapters")
    text += section("SYNOPSIS",
                    ".B hostcli \\-zek\n.I action item\n.RI [ \\-keyword [= value ]\\ ...]\n"
                    ".br\n.B hostcli \\-zek\n.br\n.B hostcli \\-pr zek\n.I action item\n"
                    ".RI [ \\-keyword [= value ]\\ ...]\n")
    text += section("DESCRIPTION", paragraphs(
        "zekcli manages a family of Fibre Channel host bus adapters that cache SAN LUNs on "
        "their own SSDs. The host program hostcli hands it every command line that carries "
        "-zek anywhere or starts with -pr zek. A command is an action and an item followed by "
        "keywords; a keyword starts with - or /, and takes its value after =. Any unambiguous "
        "abbreviation of an action, item or keyword is accepted.\n\n"
        "Without a command, hostcli -zek opens the interactive session, which offers the "
        "commands as numbered menus and prompts for their keywords.\n\n"
        "Each command has its own page, named after its action and item, as listed under "
        "COMMANDS; hostcli -zek help cli lists them too, and -help after a command shows its help."))
    listing = ""
    for cmd in commands:
        listing += ".TP\n.BR %s (1)\n%s\n" % (escape(page_name(cmd)), escape(cmd["title"].strip() or "-"))
    text += section("COMMANDS", listing)
    text += section("KEYWORDS COMMON TO ALL COMMANDS", verbatim(table["common_help"]))
    codes = "".join(".TP\n.B %d\n%s\n" % (c["code"], escape(c["text"])) for c in table["return_codes"])
    text += section("EXIT STATUS", paragraphs(
        "The exit status is the command's return code when it is below 255, else 255. "
        "The command line's own codes are:") + codes + paragraphs(
        "Any other code comes from the management library; it may not fit an exit status, so "
        "ask for a result file with -result and read the full code from it, for example with "
        "zekcli-result(1). hostcli -zek retval cli -rv=N explains a code."))
    text += section("FILES", ".TP\n.I $HOME/zekcli.ini\n" + escape(
        "Preferences: keyword values persist between runs. Written only after a command succeeds.") +
        "\n.TP\n.I $HOME/zekcli.log\n" + escape(
            "Command history, appended to only when the file already exists.") +
        "\n.TP\n.I <action>_<item>.log, <action>_<item>.dat\n" + escape(
            "Default names of the -textfile and -result files, in the working directory.") + "\n")
    text += section("ENVIRONMENT", ".TP\n.B HOME\n" + escape(
        "Where the preferences file and the command history live.") + "\n.TP\n.B HBASIM_STATE\n" + escape(
            "With the simulated SAN in place of adapters: its state file, "
            "by default $HOME/.hbasim/san.json.") + "\n.TP\n.B HBASIM_TIME\n" + escape(
                "With the simulated SAN: pins its clock to these Unix seconds.") + "\n")
    text += section("EXAMPLES", verbatim(
        "hostcli -zek list adapter\n"
        "hostcli -zek show lun -zek=0 -lun_number=2\n"
        "hostcli -zek show adapter -zek=0 -result=adapter.dat\n"
        "zekcli-result adapter.dat --json\n"
        "hostcli -zek help cli"))
    text += section("SEE ALSO", ".BR zekcli\\-result (1)\n")
    return text


def usage_page(name, usage):
    """A program's own usage text as its page (the simulator tool's)."""
    lines = usage.strip("\n").split("\n")
    summary = lines[2].strip().rstrip(".") if len(lines) > 2 else name
    text = header(name, summary[0].lower() + summary[1:] if summary else name)
    text += section("SYNOPSIS", verbatim(lines[0].replace("Usage: ", "", 1)))
    text += section("DESCRIPTION", verbatim("\n".join(lines[1:])))
    text += section("SEE ALSO", ".BR zekcli (1)\n")
    return text


def write_page(folder, name, text):
    path = os.path.join(folder, name + ".1.gz")
    with open(path, "wb") as raw:
        with gzip.GzipFile(filename="", mode="wb", fileobj=raw, mtime=0, compresslevel=9) as out:
            out.write(text.encode("ascii", "backslashreplace"))


def main(argv):
    if len(argv) < 3:
        sys.stderr.write("usage: make-man.py COMMANDS.json OUTDIR [PAGE.1 | NAME=USAGE_FILE]...\n")
        return 2
    with open(argv[1]) as f:
        table = json.load(f)
    folder = argv[2]
    os.makedirs(folder, exist_ok=True)
    for old in os.listdir(folder):
        if old.endswith(".1.gz"):
            os.remove(os.path.join(folder, old))
    write_page(folder, "zekcli", overview_page(table))
    for cmd in table["commands"]:
        write_page(folder, page_name(cmd), command_page(cmd, table))
    # hostcli is the program that runs zekcli: its page is zekcli's.
    write_page(folder, "hostcli", ".so man1/zekcli.1\n")
    for extra in argv[3:]:
        if "=" in extra:
            name, path = extra.split("=", 1)
            with open(path) as f:
                write_page(folder, name, usage_page(name, f.read()))
        else:
            with open(extra) as f:
                write_page(folder, os.path.basename(extra)[:-2], f.read())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
