"""What bash, zsh and fish complete behind tarnwick-host and tarnwick, asked of the real shells, against what --help has.
Arguments: tarnwick-host, the folder of the completions. A shell that is missing is told, and ends in status 77."""

import os
import pty
import re
import select
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, COMPLETIONS = Path(sys.argv[1]), Path(sys.argv[2])
ENVIRONMENT = {**os.environ, "LC_ALL": "C.UTF-8", "HISTFILE": ""}
for inherited in ("ZDOTDIR", "BASH_ENV", "ENV"):
    ENVIRONMENT.pop(inherited, None)

BASH = r"""
. /usr/share/bash-completion/bash_completion
compopt() { :; } # not known outside of a real completion
. "$1"
eval "COMP_WORDS=($2)"
COMP_LINE=$3 COMP_POINT=${#3} COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMP_TYPE=9 COMP_KEY=9
$(complete -p "${COMP_WORDS[0]}" | sed -E 's/.*-F ([^ ]+).*/\1/') 2>/dev/null
printf '%s\0' "${COMPREPLY[@]}"
"""

# Every match is noted, whichever function offers it.
ZSH = r"""
PS1= ; fpath=("$FOLDER" $fpath); autoload -Uz compinit; compinit -D -u
unsetopt prompt_cr prompt_sp zle_bracketed_paste
compadd() {
  local -a hits
  (( ${@[(I)-[ADO]*]} )) || { builtin compadd -O hits "$@"; (( $#hits )) && print -rNn -- $hits '' >> "$NOTES" }
  builtin compadd "$@"
}
finish() { print -n END >> "$NOTES"; exit 0 }
zle -N finish; bindkey '^X^X' finish
bindkey '^I' complete-word # zsh's usual one runs a typed command substitution, whatever is completed
print READY
"""


def words_of(shell_line):
    """The words of a line as bash's completion gets them: "=" is a word."""
    return " ".join(f"'{word}'" for word in re.split(r"(=)| ", shell_line) if word is not None)


def bash(program, line, folder, environment):
    asked = subprocess.run(["bash", "--norc", "-c", BASH, "bash", COMPLETIONS / f"{program}.bash", words_of(line), line],
                           cwd=folder, env=environment, capture_output=True, check=False, timeout=120)
    return {word.decode() for word in asked.stdout.split(b"\0") if word}


def fish(program, line, folder, environment):
    script = f'source {COMPLETIONS / program}.fish; complete -C "$LINE" | string collect'
    asked = subprocess.run(["fish", "--no-config", "-c", script], cwd=folder, env={**environment, "LINE": line},
                           capture_output=True, text=True, check=False, timeout=120)
    return {word.split("\t")[0] for word in asked.stdout.split("\n") if word}


def zsh(_, line, folder, environment):
    with tempfile.TemporaryDirectory() as own:
        notes, setup = Path(own, "notes"), Path(own, "setup")
        setup.write_text(ZSH)
        process, terminal = pty.fork()
        if process == 0:
            os.chdir(folder)
            os.execvpe("zsh", ["zsh", "-f", "-i"], {**environment, "FOLDER": str(COMPLETIONS), "NOTES": str(notes),
                                                    "TERM": "xterm", "HOME": own})
        os.write(terminal, f". {setup}\n".encode())
        shown, is_asked = b"", False
        while select.select([terminal], [], [], 120)[0]:
            try:
                shown += os.read(terminal, 4096)
            except OSError:
                break  # it has ended
            if not is_asked and b"READY\r" in shown:
                is_asked = True
                os.write(terminal, line.encode() + b"\t\x18\x18")
        os.close(terminal)
        os.waitpid(process, 0)
        noted = notes.read_bytes()
    assert noted.endswith(b"END"), shown
    return {word.decode() for word in noted[:-3].split(b"\0") if word}


SHELLS = {shell.__name__: shell for shell in (bash, zsh, fish)}
MISSING = [name for name in SHELLS if not shutil.which(name)]
if not Path("/usr/share/bash-completion/bash_completion").exists():
    MISSING.append("bash")


def rows(*arguments):
    """The options of a command as its help has them, or the commands and options of the program."""
    told = subprocess.run([PROGRAM, *arguments, "--help"], env=ENVIRONMENT, capture_output=True, text=True, check=True)
    table = told.stdout.split("\n\n")[1]
    return set(re.findall(r"^  (\S+)", table, re.MULTILINE))


class Completion(unittest.TestCase):
    def ask(self, line, folder="/", environment=None):
        """What each shell offers behind a line; the value alone where one stands behind its option."""
        own = line.split(" ")[-1].split("=")[0] + "="
        for name, shell in SHELLS.items():
            if name not in MISSING:
                offered = shell(line.split(" ")[0], line, folder, environment or ENVIRONMENT)
                yield f"{name}: {line}", {re.sub(r"\\(.)", r"\1", word.rstrip("/ ").removeprefix(own)) for word in offered}

    def test_commands_and_options_are_those_of_the_help(self):
        commands = rows()
        self.assertIn("run", commands)
        for what, offered in self.ask("tarnwick-host "):
            self.assertEqual(offered | {"--help", "--version"}, commands, what)
        for command in (word for word in commands if word[0] != "-"):
            for what, offered in self.ask(f"tarnwick-host {command} --"):
                self.assertEqual({word.removesuffix("=") for word in offered}, rows(command), what)
        for what, offered in self.ask("tarnwick --"):
            self.assertEqual(offered, {"--help", "--version"}, what)

    def test_values_are_offered_and_numbers_are_not(self):
        tests = {"sequentialWrite", "sequentialRead", "randomRead", "randomWrite", "fileOps"}
        cases = {
            "run --card ": {"light", "dark"},
            "run --card=d": {"dark"},
            "run --size f": {"fill"},
            "check --size a": {"all"},
            "show --format ": {"text", "markdown", "csv", "json"},
            "history --format=m": {"markdown"},
            "run --tests ": tests,
            "run --tests fileOps,randomR": {"fileOps,randomRead"},
            "run --random-ops ": set(),
            "history ": {"list", "show", "export", "delete"},
        }
        for line, wanted in cases.items():
            for what, offered in self.ask(f"tarnwick-host {line}"):
                if what.startswith("zsh") and "," in line:  # it completes the word behind the comma
                    offered = {"fileOps," + word for word in offered}
                self.assertEqual({word.rstrip(",") for word in offered} - {""}, wanted, what)

    def test_names_are_offered_and_never_executed(self):
        with tempfile.TemporaryDirectory() as folder:
            names = {"a b", "it's", 'say "x"', "$(touch pwned)", "`touch pwned`", "; touch pwned"}
            for name in names | {"two\nlines"}:
                Path(folder, name).mkdir()
            Path(folder, "one.tarnwickrun").touch()
            Path(folder, "other.png").touch()
            for command in ("run", "run --json --", "check", "facts", "smart-report"):
                for what, offered in self.ask(f"tarnwick-host {command} ", folder):
                    self.assertLessEqual(names, offered, what)
                    self.assertNotIn("other.png", offered, what)
            for line in ("tarnwick-host show ", "tarnwick-host card --dark ", "tarnwick "):
                for what, offered in self.ask(line, folder):
                    self.assertIn("one.tarnwickrun", offered, what)
            for typed in ("$(touch pwned", "`touch pwned`", "a\\ "):
                list(self.ask(f"tarnwick-host run {typed}", folder))
            self.assertFalse(Path(folder, "pwned").exists())

    def test_names_of_runs_come_from_the_list(self):
        with tempfile.TemporaryDirectory() as folder:
            program = Path(folder, "tarnwick-host")
            program.write_text("#!/bin/sh\n"
                               "printf '%s\\n' 'Run  Date' '0123ABCD  x' '$(touch pwned)  y' 'ABCDEF01  $(touch pwned)'\n")
            program.chmod(0o700)
            environment = {**ENVIRONMENT, "PATH": f"{folder}:{ENVIRONMENT['PATH']}"}
            for what, offered in self.ask("tarnwick-host history show ", folder, environment):
                self.assertEqual(offered, {"0123ABCD", "ABCDEF01"}, what)
            self.assertFalse(Path(folder, "pwned").exists())


if __name__ == "__main__":
    outcome = unittest.main(argv=sys.argv[:1], exit=False)
    if MISSING:
        print("Not tried, for it is not installed:", ", ".join(sorted(set(MISSING))))
    sys.exit(1 if not outcome.result.wasSuccessful() else 77 if MISSING else 0)
