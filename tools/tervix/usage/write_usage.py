#!/usr/bin/env python3
"""Writes the man page and the completions for bash and zsh of tervix.

    tervix --command-tree | write_usage.py --frame tervix.1.in --version V --date D --folder F

What is told of a command is what its help tells: the tree comes from the tool itself.
"""

import argparse
import json
import pathlib
import re
import shlex
import sys

PROJECT_FILES = ("tvp", "sim", "aap")


def leaves(command, path=()):
    """Every command that can be run, with the names that lead to it."""
    path = path + (command["name"],)
    if not command["commands"]:
        yield path, command
    for sub in command["commands"]:
        yield from leaves(sub, path)


def commands(command, path=()):
    yield path, command
    for sub in command["commands"]:
        yield from commands(sub, path + (sub["name"],))


def positionals(command):
    return [option for option in command["options"] if not option["names"]]


def named_options(command):
    return [option for option in command["options"] if option["names"]]


def value_name(option):
    """What stands for the value in a text; None for an option without one."""
    if "value" not in option:
        return None
    return option["value"] or re.split(r"[:\s]", option["type"])[0] or "VALUE"


def choices(option):
    """The values that an option takes, as far as they can be listed."""
    kind = option.get("type", "")
    if listed := re.search(r"\{([^}]*)\}", kind):
        return [entry.split("->")[0] for entry in listed[1].split(",")]
    if span := re.search(r"INT in \[(\d+) - (\d+)\]", kind):
        return [str(number) for number in range(int(span[1]), int(span[2]) + 1)]
    return []


def takes_file(option):
    return bool(re.search(r"FILE|FOLDER|PATH|DIR", option.get("positional", "") or
                          option.get("value", "") or option.get("type", "")))


def takes_project(option):
    return option.get("positional", "").startswith("FILE")


# ---- Man page ----


def roff(text):
    return re.sub(r"^([.'])", r"\\&\1", text.replace("\\", "\\e").replace("-", "\\-"), flags=re.M)


def roff_option(option):
    spelt = ", ".join(f"\\fB{roff(name)}\\fR" for name in option["names"])
    value = value_name(option)
    return spelt + (f" \\fI{roff(value)}\\fR" if value else "")


def roff_usage(path, command):
    words = [f"\\fB{roff(' '.join(path))}\\fR"]
    if any(option["names"] != ["-h", "--help"] for option in named_options(command)):
        words.append("[\\fIOPTIONS\\fR]")
    for option in positionals(command):
        word = f"\\fI{roff(option['positional'])}\\fR" + ("..." if option["repeats"] else "")
        words.append(word if option["required"] else f"[{word}]")
    return " ".join(words)


def roff_items(items):
    return [line for title, text in items for line in (".TP", title, sentence(text))]


def sentence(text):
    text = roff(text).strip()
    return text if text.endswith((".", ":", "!")) else text + "."


def is_help(option):
    return "--help" in option["names"]


def man_page(tree, frame, version, date):
    synopsis, body = [], []
    for path, command in leaves(tree):
        synopsis += [roff_usage(path, command), ".br"]
        body += [".SS " + roff_usage(path, command), sentence(command["help"])]
        body += roff_items((f"\\fI{roff(option['positional'])}\\fR", option["help"])
                           for option in positionals(command))
        body += roff_items((roff_option(option), option["help"])
                           for option in named_options(command) if not is_help(option))
    general = roff_items((roff_option(option), option["help"]) for option in named_options(tree))
    texts = {"SYNOPSIS": "\n".join(synopsis[:-1]), "COMMANDS": "\n".join(body),
             "OPTIONS": "\n".join(general), "VERSION": roff(version), "DATE": date}
    return re.sub(r"@(\w+)@", lambda place: texts[place[1]], frame)


# ---- bash ----

BASH = """\
# Completion of tervix for bash. Made from the tool's own command tree.

_tervix() {
  local word=${COMP_WORDS[COMP_CWORD]} command= position=0 i=1 skip=
  COMPREPLY=()
  for ((; i < COMP_CWORD; i++)); do
    if [[ -n $skip ]]; then
      skip=
    elif [[ " $(_tervix_words values "$command") " == *" ${COMP_WORDS[i]} "* ]]; then
      skip=${COMP_WORDS[i]}
    elif [[ ${COMP_WORDS[i]} != -* ]]; then
      if [[ " $(_tervix_words commands "$command") " == *" ${COMP_WORDS[i]} "* ]]; then
        command+=${command:+ }${COMP_WORDS[i]}
      else
        position=$((position + 1))
      fi
    fi
  done
  local kind=words
  if [[ -n $skip ]]; then
    kind=$(_tervix_words "$skip" "$command")
  elif [[ $word == -* ]]; then
    kind="words $(_tervix_words options "$command")"
  elif [[ -n $(_tervix_words commands "$command") ]]; then
    kind="words $(_tervix_words commands "$command")"
  else
    kind=$(_tervix_words "$position" "$command")
    [[ -n $kind ]] || kind=$(_tervix_words more "$command")
  fi
  local ending
  case $kind in
  project)
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$word"
      for ending in @FILES@; do compgen -f -X "!*.$ending" -- "$word"; done)
    ;;
  file)
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
    ;;
  words*) mapfile -t COMPREPLY < <(compgen -W "${kind#words}" -- "$word") ;;
  esac
}

# _tervix_words WHAT COMMAND: its commands, its options, those of them that take a value, what such
# an option takes, or what the argument of a number (or any further one: more) is.
_tervix_words() {
  case "$2:$1" in
@CASES@
  esac
}

complete -F _tervix tervix
"""


def kind_of(option):
    if listed := choices(option):
        return "words " + " ".join(listed)
    if takes_project(option):
        return "project"
    return "file" if takes_file(option) else ""


def bash_completion(tree):
    cases = []

    def case(path, what, text):
        if text:
            cases.append(f"  {shlex.quote(' '.join(path) + ':' + what)}) echo {shlex.quote(text)} ;;")

    for path, command in commands(tree):
        options = named_options(command)
        case(path, "commands", " ".join(sub["name"] for sub in command["commands"]))
        case(path, "options", " ".join(name for option in options for name in option["names"]))
        case(path, "values", " ".join(name for option in options if "value" in option
                                      for name in option["names"]))
        for option in options:
            for name in option["names"]:
                case(path, name, kind_of(option))
        for number, option in enumerate(positionals(command)):
            case(path, "more" if option["repeats"] else str(number), kind_of(option))
    return BASH.replace("@FILES@", " ".join(PROJECT_FILES)).replace("@CASES@", "\n".join(cases))


# ---- zsh ----


def zsh_text(text):
    return re.sub(r"([\[\]:\\])", r"\\\1", text)


def zsh_action(option):
    if listed := choices(option):
        return f"({' '.join(listed)})"
    if takes_project(option):
        return f'_files -g "*.({"|".join(PROJECT_FILES)})"'
    return "_files" if takes_file(option) else " "


def zsh_arguments(command):
    for option in named_options(command):
        value = value_name(option)
        ending = f":{zsh_text(value)}:{zsh_action(option)}" if value else ""
        alone = "(- *)" if is_help(option) or "--version" in option["names"] else ""
        for name in option["names"]:
            yield f"{alone}{name}[{zsh_text(option['help'])}]{ending}"
    for number, option in enumerate(positionals(command), 1):
        place = "*" if option["repeats"] else str(number)
        optional = "" if option["required"] or option["repeats"] else ":"
        yield f"{place}:{optional}{zsh_text(option['positional'])}:{zsh_action(option)}"


def zsh_function(path, command):
    name = "_".join(("_tervix",) + path)
    lines = [f"{name}() {{", "  local -a commands", "  local context state line"]
    arguments = list(zsh_arguments(command))
    if command["commands"]:
        arguments += ["1:command:->command", "*::argument:->argument"]
    lines += ["  _arguments -C \\", " \\\n".join(f"    {shlex.quote(each)}" for each in arguments)]
    if command["commands"]:
        lines += ["  case $state in", "  command)", "    commands=("]
        lines += [f"      {shlex.quote(sub['name'] + ':' + zsh_text(sub['help']))}"
                  for sub in command["commands"]]
        lines += ["    )", "    _describe command commands", "    ;;", "  argument)",
                  "    case $line[1] in"]
        lines += [f"    {sub['name']}) {name}_{sub['name']} ;;" for sub in command["commands"]]
        lines += ["    esac", "    ;;", "  esac"]
    return "\n".join(lines + ["}"])


def zsh_completion(tree):
    functions = [zsh_function(path, command) for path, command in commands(tree)]
    return "\n\n".join(["#compdef tervix", "# Made from the tool's own command tree."] +
                       functions + ['_tervix "$@"']) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--frame", type=pathlib.Path, required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--date", required=True)
    parser.add_argument("--folder", type=pathlib.Path, required=True)
    arguments = parser.parse_args()
    tree = json.load(sys.stdin)
    page = man_page(tree, arguments.frame.read_text(), arguments.version, arguments.date)
    arguments.folder.mkdir(parents=True, exist_ok=True)
    (arguments.folder / "tervix.1").write_text(page)
    (arguments.folder / "tervix.bash").write_text(bash_completion(tree))
    (arguments.folder / "_tervix").write_text(zsh_completion(tree))


if __name__ == "__main__":
    main()
