# shellcheck shell=bash
# bash completion of tarnvik-check. Names and values come from the program itself, so that they are those of its tables.

# The first column of a list of the program, a line each.
_tarnvik_check_list() {
    "$1" --list "$2" --json 2>/dev/null | tr '{' '\n' | sed -n 's/^"[a-z]*":"\([^"]*\)".*/\1/p'
}

# Inputs that --set takes, a line each.
_tarnvik_check_inputs() {
    "$1" --list inputs --json 2>/dev/null | tr '{' '\n' | sed -n 's/^"input":"\([^"]*\)","written as":"--set".*/\1/p'
}

# Every name of the state, and the tables and the verdict that --fields takes beside them.
_tarnvik_check_fields() {
    "$1" --lang Eng --json 2>/dev/null | sed 's/.*"state":{//; s/},"checks".*//' | grep -o '"[A-Za-z0-9_]*":' | tr -d '":'
    printf '%s\n' Mat Prof Setup checks
}

# What the option takes as its value, a line each. Status 1 where it takes files or none.
_tarnvik_check_values() {
    local command=$1 option=$2
    case $option in
    --lang) printf '%s\n' Eng Nor ;;
    --list) printf '%s\n' bolts connectors materials profiles joints cases inputs ;;
    --with) printf '%s\n' screen tables pictures report detail explanations ;;
    --fields) _tarnvik_check_fields "$command" ;;
    --set) _tarnvik_check_inputs "$command" | sed 's/$/=/' ;;
    --sweep)
        printf '%s=\n' bolts spacing tension compression angle service
        _tarnvik_check_inputs "$command" | grep -v -E '^(enk|dob)_|^(Kun_bolt|Med_bulldog|Standard|Man_he_on|Lang|Prosjekt|Id|Bolt_ab)$' |
            sed 's/$/=/'
        ;;
    --fix) printf '%s=\n' bolt bolts connector layout spacing ;;
    --bolt | bolt) _tarnvik_check_list "$command" bolts ;;
    --bolts | bolts) printf '%s\n' 1 2 3 4 6 ;;
    --layout | layout | Bolt_ab) printf '%s\n' a b ;;
    --spacing | spacing) printf '%sd\n' {5..20} ;;
    --connector | connector) _tarnvik_check_list "$command" connectors && echo none ;;
    --material) _tarnvik_check_list "$command" materials ;;
    --member1 | --member2) _tarnvik_check_list "$command" profiles ;;
    --joint) _tarnvik_check_list "$command" joints ;;
    --load) printf '%s\n' permanent long medium short instantaneous ;;
    --service | Klima) printf '%s\n' 1 2 3 ;;
    Lang) printf '%s\n' Eng Nor ;;
    enk_1 | dob_1 | enk_2 | dob_2 | Kun_bolt | Med_bulldog | Standard | Man_he_on) printf '%s\n' true false ;;
    *) return 1 ;;
    esac
}

_tarnvik_check() {
    local options="--angle --batch --bolt --bolts --compression --connector --csv --data --fields --find --fix --help --joint --jobs
        --json --lang --layout --list --load --loads --material --member1 --member2 --pictures --plot --report --save --service
        --set --sheet --sheets --spacing --strict --sweep --tension --verify --version --with --with-connectors -V -h"
    local command=${COMP_WORDS[0]} current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} head='' match
    COMPREPLY=()
    if [[ $current == = ]]; then # bash takes "=" for a word of its own
        current=''
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    case $previous in
    --data | --pictures | --sheets)
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
        ;;
    --save | --report | --plot | --loads | --sheet | --verify)
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    esac
    local values
    if values=$(_tarnvik_check_values "$command" "$previous"); then
        if [[ $previous == --with || $previous == --fields || $previous == --fix ]] && [[ $current == *,* ]]; then
            head=${current%,*},
            current=${current##*,}
        fi
        current=${current//\\/} # a blank of a name that is typed already
        while IFS= read -r match; do
            if [[ ${match,,} == "${current,,}"* && -n $match ]]; then
                COMPREPLY+=("$head$(printf '%q' "$match")")
            fi
        done <<<"$values"
        if [[ ${COMPREPLY[0]:-} == *= ]]; then
            compopt -o nospace 2>/dev/null
        fi
        return
    fi
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -X '!*.tnvik' -- "$current" && compgen -d -- "$current")
    fi
}

complete -F _tarnvik_check tarnvik-check
