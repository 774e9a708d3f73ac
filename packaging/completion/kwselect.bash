# Completion of kwselect for bash. What can be asked for is asked of the drawing on the line.

_kwselect_drawing() {
    local word
    for word in "${COMP_WORDS[@]:1}"; do
        if [[ -f $word ]]; then
            printf '%s' "$word"
            return
        fi
    done
}

# The value of an option that stands on the line already.
_kwselect_given() {
    local i
    for ((i = 1; i < COMP_CWORD - 1; i++)); do
        if [[ ${COMP_WORDS[i]} == "$1" || ${COMP_WORDS[i]} == "$2" ]]; then
            printf '%s' "${COMP_WORDS[i + 1]//[\"\'\\]/}"
            return
        fi
    done
}

_kwselect_listed() {
    local drawing type property=
    drawing=$(_kwselect_drawing)
    [[ -n $drawing ]] || return
    type=$(_kwselect_given -t --type)
    [[ $1 == properties ]] || property=$(_kwselect_given -p --property)
    kwselect "$drawing" --list "$1" ${type:+--type "$type"} ${property:+--property "$property"} \
        --format tsv 2>/dev/null | cut -f1
}

# Offers lines that may hold blanks.
_kwselect_offer() {
    local line prefix=${COMP_WORDS[COMP_CWORD]#[\"\']}
    COMPREPLY=()
    while IFS= read -r line; do
        [[ ${line,,} == "${prefix,,}"* ]] && COMPREPLY+=("$(printf '%q' "$line")")
    done
}

_kwselect() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    case $previous in
    -t | --type) _kwselect_offer < <(kwselect "$(_kwselect_drawing)" --list types --format tsv 2>/dev/null | cut -f1) ;;
    -p | --property | --columns | --group-by) _kwselect_offer < <(_kwselect_listed properties) ;;
    -o | --operator) _kwselect_offer < <(_kwselect_listed operators) ;;
    -v | --value) _kwselect_offer < <(_kwselect_listed values) ;;
    --list) COMPREPLY=($(compgen -W "types properties operators values filters recent" -- "$current")) ;;
    --format) COMPREPLY=($(compgen -W "handles table tsv csv json jsonl" -- "$current")) ;;
    --space) COMPREPLY=($(compgen -W "model paper: block: all" -- "$current")) ;;
    --output | --write | --filters) COMPREPLY=($(compgen -f -- "$current")) ;;
    -f | --filter | --recent | --then | --append | --tolerance | --why | -j | --jobs) COMPREPLY=() ;;
    *)
        if [[ $current == -* ]]; then
            COMPREPLY=($(compgen -W "$(kwselect --help | grep -oE '(^|[ ,])--?[a-z][a-z-]*' | tr -d ' ,' | sort -u)" -- "$current"))
        else
            COMPREPLY=($(compgen -f -X '!*.[dD][xXwW][fFgG]' -- "$current") $(compgen -d -- "$current"))
        fi
        ;;
    esac
}

complete -o filenames -F _kwselect kwselect
