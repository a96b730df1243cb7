# SPDX-License-Identifier: GPL-2.0-or-later
# Completion of bvprint in bash. All words come from bvprint, which asks a print server for two seconds at most.

_bvprint()
{
    local program=$1 typed=$2 before='' what i word words=() session=() found=()
    # Bash takes "-o KEY=CHOICE" for three words and more.
    for ((i = 1; i <= COMP_CWORD; i++)); do
        word=${COMP_WORDS[i]}
        if ((${#words[@]})) && [[ $word == [=:]* || ${words[-1]} == *[=:] ]]; then
            words[-1]+=$word
        else
            words+=("$word")
        fi
    done
    for ((i = 0; i < ${#words[@]}; i++)); do
        case ${words[i]} in
        -d | --queue | --ppd) ((i + 2 < ${#words[@]})) && session+=("${words[i]}" "${words[i + 1]}") ;;
        --queue=* | --ppd=*) session+=("${words[i]}") ;;
        esac
    done
    local current=${words[-1]} previous=
    ((${#words[@]} > 1)) && previous=${words[-2]}
    if [[ $current == --*=* ]]; then
        previous=${current%%=*}
        current=${current#*=}
    fi

    case $previous in
    -d | --queue) what=queues ;;
    --preset) what=presets ;;
    -o | --option) [[ $current == *=* ]] && what=${current%%=*}= || what=keywords ;;
    --agent) found=(on off run) ;;
    -n | --copies | -P | --pages | -t | --title | --device-uri | --job | --from | --complete) compopt +o default; return ;;
    --batch | --plugin | --ppd | --ticket | --screenshot) return ;;
    *) [[ $current == -?* || $current == - ]] && what=options || return ;;
    esac
    # Where "=" ends no word, the part before it stands in the word to complete.
    if [[ $typed == *=* ]]; then
        before=${typed%=*}=
        typed=${typed##*=}
    fi
    [[ ${COMP_WORDBREAKS} == *=* ]] && before=
    typed=${typed#[\"\']}
    typed=${typed//\\/}
    compopt +o default
    [[ -z $what ]] || mapfile -t found < <("$program" --complete "$what" "${session[@]}" 2> /dev/null)
    COMPREPLY=()
    for word in "${found[@]}"; do
        [[ $word != "$typed"* ]] || COMPREPLY+=("$before$(printf '%q' "$word")")
    done
    [[ $what != keywords ]] || compopt -o nospace
}
complete -o default -F _bvprint bvprint
