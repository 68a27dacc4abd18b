#include "tools/completion.h"

#include "core/months.h"
#include "tools/option_table.h"
#include "tools/options.h"
#include "tools/text.h"

#include <vector>

namespace {

using Words = std::vector<std::string>;

template <typename Value, std::size_t size> Words NamesIn(const NameTable<Value, size> &table) {
    Words names;
    for (const Named<Value> &each : table)
        names.emplace_back(each.name);
    return names;
}

/// The values that an option of this kind may have, where they are few and short.
Words ChoicesOf(ValueKind kind) {
    switch (kind) {
    case ValueKind::Month: {
        Words months;
        for (const std::u16string_view name : modReadings::englishMonths)
            months.push_back(ToUtf8(name));
        return months;
    }
    case ValueKind::Format:
        return NamesIn(formatNames);
    case ValueKind::Shell:
        return NamesIn(shellNames);
    case ValueKind::Paper:
        return NamesIn(paperNames);
    default:
        return {};
    }
}

std::string Joined(const Words &words, std::string_view between) {
    std::string text;
    for (const std::string &word : words) {
        if (!text.empty())
            text += between;
        text += word;
    }
    return text;
}

std::string Replaced(std::string_view text, char what, std::string_view by) {
    std::string result;
    for (const char c : text)
        if (c == what)
            result += by;
        else
            result += c;
    return result;
}

/// The first sentence of the help, without its full stop.
std::string Description(const OptionRow &row) {
    const std::size_t end = row.help.find(". ");
    std::string_view sentence = row.help.substr(0, end);
    if (sentence.ends_with('.'))
        sentence.remove_suffix(1);
    return std::string(sentence);
}

/// The spellings of an option: its short form, if there is one, and its long one.
Words Spellings(const OptionRow &row) {
    Words words;
    if (row.letter != 0)
        words.push_back(std::string("-") + row.letter);
    words.push_back("--" + std::string(row.name));
    return words;
}

std::string ForBash() {
    Words all;
    std::string cases;
    for (const OptionRow &row : OptionTable()) {
        const Words spellings = Spellings(row);
        all.insert(all.end(), spellings.begin(), spellings.end());
        if (row.value.empty())
            continue;
        cases += "    " + Joined(spellings, " | ") + ")\n";
        const Words choices = ChoicesOf(row.kind);
        if (!choices.empty())
            cases += "        values=(" + Joined(choices, " ") + ") ;;\n";
        else if (row.kind == ValueKind::Topic)
            cases += "        mapfile -t values < <(\"${COMP_WORDS[0]}\" --list-topics "
                     "2>/dev/null) ;;\n";
        else if (row.kind == ValueKind::File || row.kind == ValueKind::Folder)
            cases += std::string("        compopt -o filenames 2>/dev/null\n") +
                     "        mapfile -t COMPREPLY < <(compgen " +
                     (row.kind == ValueKind::File ? "-f" : "-d") +
                     " -- \"$word\")\n"
                     "        return ;;\n";
        else
            cases += "        return ;;\n";
    }
    return R"(# Completion of orravane-report for bash.

_orravane_report() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
    # An equals sign is a word of its own here: --format=json is three.
    if [[ $word == = ]]; then
        word=
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD-2]}
    fi

    local values=() value quote= plain=$word
    COMPREPLY=()
    case $before in
)" + cases +
           R"(    *)
        # Behind --batch, further arguments are further files.
        if [[ $word != -* && " ${COMP_WORDS[*]:1:COMP_CWORD} " == *" --batch "* ]]; then
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$word")
            return
        fi
        values=()" +
           Joined(all, " ") + R"() ;;
    esac

    # What was typed may be quoted, and in upper or lower case.
    case $word in
    [\"\']*)
        quote=${word:0:1}
        plain=${word:1} ;;
    *)
        plain=${word//\\/} ;;
    esac
    for value in "${values[@]}"; do
        [[ ${value,,} == "${plain,,}"* && ($value != -* || $value == "$plain"*) ]] || continue
        case $quote in
        \") ;;
        \') value=${value//\'/\'\\\'\'} ;;
        *) printf -v value %q "$value" ;;
        esac
        COMPREPLY+=("$value")
    done
    if ((${#COMPREPLY[@]} == 1)); then
        COMPREPLY=("${COMPREPLY[0]}$quote")
    fi
}

complete -F _orravane_report orravane-report
)";
}

std::string ForZsh() {
    std::string specs;
    for (const OptionRow &row : OptionTable()) {
        // Quotation marks of the shell around all, brackets around the description.
        std::string help = Description(row);
        for (const auto &[mark, written] :
             {std::pair('[', "\\["), {']', "\\]"}, {':', "\\:"}, {'\'', "'\\''"}})
            help = Replaced(help, mark, written);
        std::string value;
        if (!row.value.empty()) {
            value = ":" + std::string(row.value) + ":";
            const Words choices = ChoicesOf(row.kind);
            if (!choices.empty())
                value += "(" + Joined(choices, " ") + ")";
            else if (row.kind == ValueKind::Topic)
                value += "_orravane_report_topics";
            else if (row.kind == ValueKind::File)
                value += "_files";
            else if (row.kind == ValueKind::Folder)
                value += "_files -/";
            else
                value += " ";
        }
        const Words spellings = Spellings(row);
        for (const std::string &spelling : spellings) {
            const std::string without = row.repeatable ? "*" : "(" + Joined(spellings, " ") + ")";
            const bool isLong = spelling.starts_with("--");
            specs += " \\\n        '" + without + spelling +
                     (row.value.empty() ? "" : (isLong ? "=" : "+")) + "[" + help + "]" + value +
                     "'";
        }
    }
    return R"(#compdef orravane-report
# Completion of orravane-report for zsh.

_orravane_report_topics() {
    local -a topics
    topics=("${(@f)$(_call_program topics orravane-report --list-topics 2>/dev/null)}")
    compadd -M 'm:{a-z}={A-Z}' -a topics
}

_orravane_report() {
    local -a files
    # Behind --batch, further arguments are further files.
    ((${words[(I)--batch(|=*)]})) && files=('*:file:_files')
    _arguments)" +
           specs + R"( \
        "${files[@]}"
}

_orravane_report "$@"
)";
}

std::string ForFish() {
    std::string text = "# Completion of orravane-report for fish.\n\n"
                       "complete -c orravane-report -f\n"
                       "# Behind --batch, further arguments are further files.\n"
                       "complete -c orravane-report -n '__fish_contains_opt batch' -F\n";
    for (const OptionRow &row : OptionTable()) {
        text += "complete -c orravane-report -l " + std::string(row.name);
        if (row.letter != 0)
            text += std::string(" -s ") + row.letter;
        if (!row.value.empty()) {
            const Words choices = ChoicesOf(row.kind);
            if (row.kind == ValueKind::File)
                text += " -r -F";
            else if (row.kind == ValueKind::Folder)
                text += " -x -a '(__fish_complete_directories (commandline -ct))'";
            else if (row.kind == ValueKind::Topic)
                text += " -x -a '(orravane-report --list-topics 2>/dev/null)'";
            else if (choices.empty())
                text += " -x";
            else
                text += " -x -a '" + Joined(choices, " ") + "'";
        }
        text += " -d '" + Replaced(Description(row), '\'', "\\'") + "'\n";
    }
    return text;
}

} // namespace

std::string CompletionFor(Shell shell) {
    switch (shell) {
    case Shell::Zsh:
        return ForZsh();
    case Shell::Fish:
        return ForFish();
    case Shell::Bash:
        break;
    }
    return ForBash();
}
