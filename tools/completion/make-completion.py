#!/usr/bin/env python3
"""Writes the bash completion of "hostcli -zek ..." from the command table
that zek-describe dumps.

    make-completion.py COMMANDS.json OUTFILE

The tables (actions, items per action, keywords per command, the values a
keyword takes) are generated; the completion logic is the fixed part in
hostcli.bash.in beside this script.
"""

import json
import os
import re
import sys

# A keyword's choices as its help lists them, "a, b, c or d" (or "a or b"),
# at the start of its description or after a label such as "Link rate:".
CHOICES = re.compile(r"(?:^|:\s)((?:[a-z0-9][a-z0-9_]*,\s+)*[a-z0-9][a-z0-9_]*,?\s+or\s+[a-z0-9][a-z0-9_]*)(?=[.:;]|$)")


def keyword_blocks(help_text):
    """{keyword: (placeholder, description)} from a command's keyword help."""
    blocks = {}
    for block in re.split(r"\n(?=[-/])", "\n" + help_text):
        m = re.match(r"[-/](\w+|\?)\s*(?:=\s*<([^>]*)>)?[^\n]*\n?(.*)", block.strip("\n"), re.S)
        if m and m.group(1) not in blocks:
            blocks[m.group(1)] = (m.group(2) or "", " ".join(m.group(3).split()))
    return blocks


def choices(description):
    m = CHOICES.search(description)
    if not m:
        return []
    return [w for w in re.split(r",?\s+or\s+|,\s+", m.group(1)) if w]


def value_kind(name, placeholder):
    """How a keyword's value is completed besides listed choices."""
    if "adapter" in placeholder or name in ("zek", "mirror"):
        return "adapter"
    if name == "clusterid":
        return "cluster"
    if "file" in placeholder or "folder" in placeholder or "directory" in placeholder or "path" in placeholder:
        return "file"
    return ""


def keyword_word(keyword):
    return keyword["name"] + ("=" if keyword["value"] == "required" else "")


def quote(text):
    return "'" + text.replace("'", "'\\''") + "'"


def tables(table):
    lines = []
    actions = []
    items = {}
    for cmd in table["commands"]:
        if cmd["action"] not in actions:
            actions.append(cmd["action"])
        items.setdefault(cmd["action"], []).append(cmd["item"])
    lines.append("_zekcli_actions=%s" % quote(" ".join(actions)))
    lines.append("declare -gA _zekcli_items=(")
    for action in actions:
        lines.append("  [%s]=%s" % (quote(action), quote(" ".join(items[action]))))
    lines.append(")")
    common = [k for k in table["common_keywords"] if k["required"] != "internal"]
    lines.append("_zekcli_common=%s" % quote(" ".join(keyword_word(k) for k in common)))
    keywords, values, kinds = {}, {}, {}
    common_blocks = keyword_blocks(table["common_help"])
    for k in common:
        placeholder, _ = common_blocks.get(k["name"], ("", ""))
        kind = value_kind(k["name"], placeholder.lower())
        if kind:
            kinds["* " + k["name"]] = kind
    for cmd in table["commands"]:
        words = "%s %s" % (cmd["action"], cmd["item"])
        own = [k for k in cmd["keywords"] if k["required"] != "internal"]
        keywords[words] = " ".join(keyword_word(k) for k in own)
        blocks = keyword_blocks(cmd["modifiers"])
        for k in own:
            placeholder, description = blocks.get(k["name"], ("", ""))
            listed = choices(description)
            if listed:
                values[words + " " + k["name"]] = " ".join(listed)
            kind = value_kind(k["name"], placeholder.lower())
            if kind:
                kinds[words + " " + k["name"]] = kind
    for name, entries in (("_zekcli_keywords", keywords), ("_zekcli_values", values), ("_zekcli_kinds", kinds)):
        lines.append("declare -gA %s=(" % name)
        for key in sorted(entries):
            lines.append("  [%s]=%s" % (quote(key), quote(entries[key])))
        lines.append(")")
    return "\n".join(lines) + "\n"


def main(argv):
    if len(argv) != 3:
        sys.stderr.write("usage: make-completion.py COMMANDS.json OUTFILE\n")
        return 2
    with open(argv[1]) as f:
        table = json.load(f)
    with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "hostcli.bash.in")) as f:
        template = f.read()
    with open(argv[2], "w") as f:
        f.write(template.replace("@ZEKCLI_TABLES@\n", tables(table)))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
