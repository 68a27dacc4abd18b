#!/bin/bash
# completion.sh ORRAVANE-REPORT COMPLETIONS BASH ZSH FISH
# What each shell itself offers where somebody presses Tab, with the built completions.
set -eu
program=$1
completions=$2
bash=$3
zsh=$4
fish=$5
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

# The shells ask orravane-report for its topics.
PATH=$(dirname "$program"):$PATH
export PATH HOME="$work"
cd "$work"
mkdir readings
echo >people.csv

# offers SHELL LINE EXPECTED: the sorted offers at the end of LINE, with blanks between.
offers() {
    found=$("$1_offers" "$2" | LC_ALL=C sort | paste -sd ' ')
    if [ "$found" != "$3" ]; then
        printf '%s: after "%s" there is "%s" and not "%s"\n' "$1" "$2" "$found" "$3"
        failed=1
    fi
}

# An interactive shell at a terminal of its own; its one offer is typed out by Tab, and the
# words of the line are then shown and not run.
bash_typed() {
    python3 - "$bash" "$completions/orravane-report.bash" "$1" <<'TAB'
import os, pty, re, select, sys, time
shell, completion, line = sys.argv[1:]
with open("start", "w") as start:
    start.write(f"stty -echo; bind 'set enable-bracketed-paste off'; . '{completion}'\n"
                "shown() { shift; printf '<%s>\\n' \"$@\" END; }; PS1='@ '\n")
child, terminal = pty.fork()
if child == 0:
    os.execve(shell, [shell, "--noprofile", "--rcfile", "start", "-i"],
              dict(os.environ, TERM="dumb", INPUTRC="/dev/null"))
seen = b""

def until(pattern):
    global seen
    end = time.monotonic() + 20
    while not re.search(pattern, seen):
        ready, _, _ = select.select([terminal], [], [], max(0, end - time.monotonic()))
        if not ready:
            sys.exit(f"bash is silent after {seen!r}")
        seen += os.read(terminal, 4096)
    result, seen = seen, b""
    return result

until(rb"@ $")
os.write(terminal, line.encode() + b"\t\x01shown \n")  # from the start of the line
print(" ".join(re.findall(r"<(.*?)>\r?\n", until(rb"<END>").decode())[:-1]))
os.write(terminal, b"exit\n")
os.close(terminal)
os.waitpid(child, 0)
TAB
}

# typed SHELL LINE EXPECTED: the words behind the first, once Tab is pressed at the end of LINE.
typed() {
    found=$("$1_typed" "$2")
    if [ "$found" != "$3" ]; then
        printf '%s: "%s" becomes "%s" and not "%s"\n' "$1" "$2" "$found" "$3"
        failed=1
    fi
}

typed bash 'orravane-report --first-l' '--first-line'
typed bash 'orravane-report -f j' '-f json'
typed bash 'orravane-report --format=r' '--format=rtf'
typed bash 'orravane-report --month sep' '--month September'
typed bash 'orravane-report --topic "life path n' '--topic Life Path Number'
typed bash "orravane-report --topic 'soul" "--topic Soul Urge / Heart's Desire Number"
typed bash 'orravane-report --topic soul' "--topic Soul Urge / Heart's Desire Number"
typed bash 'orravane-report --topic Life\ Path\ N' '--topic Life Path Number'
typed bash 'orravane-report --batch peo' '--batch people.csv'
typed bash 'orravane-report --batch a.csv --jobs 2 peo' '--batch a.csv --jobs 2 people.csv'
typed bash 'orravane-report --batch a.csv --first-l' '--batch a.csv --first-line'
typed bash 'orravane-report peo' 'peo'
typed bash 'orravane-report --output-dir r' '--output-dir readings/'

fish_offers() {
    "$fish" --no-config -c "source '$completions/orravane-report.fish'; complete -C \"$1\"" |
        cut -f 1
}
offers fish 'orravane-report --out' '--output --output-dir'
offers fish 'orravane-report --format ' 'csv html json markdown pdf rtf text tsv'
offers fish 'orravane-report --completion ' 'bash fish zsh'
offers fish 'orravane-report --batch peo' 'people.csv'
offers fish 'orravane-report --batch a.csv --jobs 2 peo' 'people.csv'
offers fish 'orravane-report peo' ''
offers fish 'orravane-report --output-dir r' 'readings/'
offers fish 'orravane-report --topic Life' 'Life Path Number Life Path Periods'

# zsh offers at a terminal only as well; it has one of its own for that.
zsh_typed() {
    "$zsh" -f -c '
        zmodload zsh/zpty
        zpty shell "$1" -f -i
        zpty -w shell "fpath=($2 \$fpath); autoload -Uz compinit; compinit -u -D; bindkey -e"
        zpty -w shell "shown() { shift; printf \"<%s>\n\" \"\$@\" END; }; echo READ\"\"Y"
        zpty -r -m shell line "*READY*"
        zpty -n -w shell "$3"$'"'\\t'"'
        zpty -w shell $'"'\\x01'"'"shown "
        zpty -r -m shell line "*<END>*"
        print -r -- "$line"
        zpty -d shell' zsh "$zsh" "$zsh_functions" "$1" |
        tr -d '\r' | sed -n 's/^<\(.*\)>$/\1/p' | sed '$d' | paste -sd ' '
}
zsh_functions=$work/functions
mkdir "$zsh_functions"
cp "$completions/orravane-report.zsh" "$zsh_functions/_orravane-report"
"$zsh" -f -n "$completions/orravane-report.zsh" || failed=1
typed zsh 'orravane-report --first-l' '--first-line'
typed zsh 'orravane-report -f j' '-f json'
typed zsh 'orravane-report --format=r' '--format=rtf'
typed zsh 'orravane-report --month Sep' '--month September'
typed zsh 'orravane-report --topic life\ path\ n' '--topic Life Path Number'
typed zsh 'orravane-report --topic soul' "--topic Soul Urge / Heart's Desire Number"
typed zsh 'orravane-report --batch peo' '--batch people.csv'
typed zsh 'orravane-report --batch a.csv --jobs 2 peo' '--batch a.csv --jobs 2 people.csv'
typed zsh 'orravane-report --batch=a.csv peo' '--batch=a.csv people.csv'
typed zsh 'orravane-report peo' 'peo'
typed zsh 'orravane-report --output-dir r' '--output-dir readings' # drops a last slash
exit $failed
