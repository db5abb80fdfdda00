# SPDX-License-Identifier: MIT
# Bash completion of caltofal(1), caltofal-web(1) and caltofal-sandbox(1). Nouns, verbs, options and their words come from the programs'
# own help, gateways and objects from the sandbox or the device: nothing here needs to follow them.
# shellcheck shell=bash

# _caltofal_commands PROGRAM [NOUN...]: what can follow, one a line; the help of caltofal stands anywhere
_caltofal_commands() {
    "$@" --help 2>/dev/null | sed -n '/^Subcommands:/,/^$/s/^  \([a-z][a-z0-9-]*\).*/\1/p' |
        if [[ ${1##*/} == caltofal ]]; then grep -vx help; else cat; fi
}

# _caltofal_meant WORD PROGRAM [NOUN...]: the noun or verb of that name, or the only one that begins so
_caltofal_meant() {
    local -a all
    mapfile -t all < <(_caltofal_commands "${@:2}" | grep -x -e "$1" || _caltofal_commands "${@:2}" | grep -e "^$1")
    [[ ${#all[@]} -eq 1 ]] && echo "${all[0]}"
}

# _caltofal_options PROGRAM [NOUN...]: a line for each option, with the word for its argument if it takes one
_caltofal_options() {
    "$@" --help 2>/dev/null | sed -nE 's/^  ((-[a-zA-Z]),)?(--[a-z0-9-]+)( ([^ ]+))?( .*)?$/\3 \5\n\2 \5/p' | grep -e '^-'
}

# _caltofal_argument OPTION PROGRAM [NOUN...]: the word for the option's argument; options before the noun go as well
_caltofal_argument() {
    { _caltofal_options "${@:2}"; _caltofal_options "$2"; } |
        awk -v option="$1" '$1 == option { print $2; exit }'
}

# _caltofal_positional N PROGRAM [NOUN...]: the help's word for the n-th argument that is no option, from 0
_caltofal_positional() {
    "${@:2}" --help 2>/dev/null | sed -n '/^Positionals:/,/^$/s/^  \([A-Z][A-Z]*\).*/\1/p' | sed -n "$(($1 + 1))p"
}

# _caltofal_gateways PROGRAM: caltofal-sandbox lies beside it
_caltofal_gateways() {
    local sandbox=caltofal-sandbox
    [[ $1 == */* ]] && sandbox=${1%/*}/caltofal-sandbox
    "$sandbox" list 2>/dev/null | sed -E 's/^. ([^ ]+).*/\1/'
}

# _caltofal_parameters PROGRAM GATEWAY-OPTIONS... OBJECT: the paths of all parameters at or below an object
_caltofal_parameters() {
    if [[ ${1##*/} == caltofal-sandbox ]]; then
        "${@:1:$#-1}" export --format csv "${@: -1}" 2>/dev/null | sed -n 's/^\(Device[^,{]*[^,{.]\),.*/\1/p'
    else
        "${@:1:$#-1}" get "${@: -1}" 2>/dev/null | sed -n 's/^\(Device[^ ]*\).*/\1/p'
    fi
}

# _caltofal_paths CURRENT PROGRAM GATEWAY-OPTIONS...: paths that go one component further than the current word
_caltofal_paths() {
    local base=${1%.*}.
    if [[ $1 != Device.* ]]; then
        echo Device.
        return
    fi
    _caltofal_parameters "${@:2}" "$base" | sed -nE "s/^(${base//./\\.}[^.]+\.?).*/\1/p" 2>/dev/null | sort -u
}

# _caltofal_names OBJECT PROGRAM GATEWAY-OPTIONS...: the names of the object's own parameters, or of its instances'
_caltofal_names() {
    local object=${1%.}
    _caltofal_parameters "${@:2}" "$object." |
        sed -nE "s/^${object//./\\.}\.([0-9]+\.)?([^.]+)$/\2/p" 2>/dev/null | sort -u
}

# _caltofal_writable OBJECT PROGRAM [-g NAME]: those of these names that can be set; only the sandbox tells
_caltofal_writable() {
    local sandbox=caltofal-sandbox writable
    [[ $2 == */* ]] && sandbox=${2%/*}/caltofal-sandbox
    writable=$("$sandbox" export --format csv "${4:-${CALTOFAL_GATEWAY:-home}}" "${1%.}." 2>/dev/null |
        sed -n 's/^[^,]*\.\([^.,]*\),.*,rw,.*/\1/p' | sort -u)
    if [[ -n $writable ]]; then
        _caltofal_names "$@" | grep -Fx -e "$writable"
    else
        _caltofal_names "$@"
    fi
}

# _caltofal_reply CURRENT WORD...: the words that begin like the current one; a path or NAME= goes on without a blank
_caltofal_reply() {
    local word
    COMPREPLY=()
    for word in "${@:2}"; do
        if [[ $word == "$1"* ]]; then
            COMPREPLY+=("$word")
        fi
    done
    if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *[.=] ]]; then
        compopt -o nospace 2>/dev/null
    fi
}

_caltofal_files() {
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen "$2" -- "$1")
}

# _caltofal_option_values CURRENT OPTION KIND PROGRAM [NOUN...]: KIND is the help's word for the argument
_caltofal_option_values() {
    local words
    case $2:$3 in
        -g:* | --gateway:*) words=$(_caltofal_gateways "$4") ;;
        *:*"{"*) words=${3#*"{"} && words=${words%"}"*} && words=${words//,/ } ;;
        --code:*) words=$("${@:4}" --help | sed -n 's/^  -[0-9]*  \([a-z-]*\):.*/\1/p') ;;
        --columns:*) words=$(_caltofal_headings "$1" "${@:4}" "${gateway[@]}") ;;
        --mode-section:*) words=$("$4" "${gateway[@]}" gateway --mode-section 2>/dev/null) ;;
        *:GATEWAY*) words="$(_caltofal_gateways "$4") $(compgen -f -- "$1")" ;;
        *:[a-z]*\|*) words=${3//|/ } ;;
        *:DIRECTORY*) _caltofal_files "$1" -d && return ;;
        *:FILE*) _caltofal_files "$1" -f && return ;;
        *) return ;;
    esac
    # shellcheck disable=SC2086 # words it is
    _caltofal_reply "$1" $words
}

# _caltofal_settable PROGRAM GATEWAY-OPTIONS...: of the paths that come in, objects, and parameters that can be set with
# "=" behind
_caltofal_settable() {
    local path
    while read -r path; do
        if [[ $path == *. ]]; then
            echo "$path"
        elif _caltofal_writable "${path%.*}" "$@" | grep -qx -e "${path##*.}"; then
            echo "$path="
        fi
    done
}

# _caltofal_headings CURRENT PROGRAM...: the columns of a page behind the list so far, a word for each
_caltofal_headings() {
    local before=""
    [[ $1 == *,* ]] && before=${1%,*},
    "${@:2}" --columns '?' 2>&1 | sed -n 's/; see .*//; s/.*; there are //p' | tr ',' '\n' |
        awk -v before="$before" '{ print before tolower($1) }'
}

# _caltofal_numbers PROGRAM GATEWAY-OPTIONS... SUBJECT: the instance numbers of radios or SSIDs
_caltofal_numbers() {
    local page=${*: -1}s
    "${@:1:$#-1}" wifi "$page" --terse 2>/dev/null | cut -f 1
}

# _caltofal_objects CURRENT SUFFIX LAST-OBJECT PROGRAM GATEWAY-OPTIONS...: an object, or a parameter of the last one
_caltofal_objects() {
    local words
    words=$(_caltofal_paths "$1" "${@:4}")
    [[ -n $2 ]] && words=$(_caltofal_settable "${@:4}" <<<"$words")
    if [[ -n $3 && $1 != Device.* && -n $2 ]]; then
        words+=" $(_caltofal_writable "$3" "${@:4}" | sed "s/\$/$2/")"
    elif [[ -n $3 && $1 != Device.* ]]; then
        words+=" $(_caltofal_names "$3" "${@:4}")"
    fi
    # shellcheck disable=SC2086
    _caltofal_reply "$1" $words
}

# The functions below share the variables of _caltofal.

# _caltofal_read WORD...: takes the words before the current one apart
_caltofal_read() {
    local word verb
    for word in "$@"; do
        if [[ -n $option ]]; then
            [[ $option == -g || $option == --gateway ]] && gateway=(-g "$word")
            option=""
        elif [[ $word == -- ]]; then
            given+=(--)
        elif [[ $word == -* ]]; then
            kind=$(_caltofal_argument "$word" "${command[@]}")
            option=${kind:+$word}
        elif [[ $word == help && ${#given[@]} -eq 0 && ${program##*/} == caltofal ]]; then
            help="" # its words are those that stand without it
        elif [[ ${#given[@]} -eq 0 ]] && verb=$(_caltofal_meant "$word" "${command[@]}") && [[ -n $verb ]]; then
            command+=("$verb")
        else
            given+=("$word")
            [[ $word == Device.* ]] && object=$word
        fi
    done
}

# What can stand where no option and no verb can.
_caltofal_place() {
    case ${program##*/}:${command[*]:1}:${#given[@]} in
        caltofal-sandbox:import:0 | caltofal-sandbox:export:0 | caltofal-sandbox:boot:0 | caltofal-sandbox:path:0 | \
            caltofal-sandbox:remove:0 | caltofal-sandbox:diff:[01])
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $(_caltofal_gateways "$program") ;;
        "caltofal-sandbox:fault clear:0")
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $("$program" "${gateway[@]}" fault list 2>/dev/null | cut -d : -f 1) ;;
        caltofal-sandbox:help:[01])
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $(_caltofal_commands "$program" "${given[@]}") ;;
        caltofal-sandbox:import:1) _caltofal_files "$current" -f ;;
        caltofal-sandbox:export:1) _caltofal_objects "$current" "" "" "$program" -g "${given[0]}" ;;
        "caltofal-sandbox:fault add:0")
            # shellcheck disable=SC2046
            _caltofal_reply "$current" any $(_caltofal_paths "$current" "$program" "${gateway[@]}") ;;
        caltofal:set:* | caltofal:add:*) _caltofal_objects "$current" = "$object" "$program" "${gateway[@]}" ;;
        caltofal:capture:*) _caltofal_objects "$current" "" "" "$program" "${gateway[@]}" ;;
        caltofal:get:* | caltofal:del:* | caltofal:find:* | caltofal:lower-layers:0 | caltofal:dns:0)
            _caltofal_objects "$current" "" "$object" "$program" "${gateway[@]}" ;;
        "caltofal:wifi set:0") _caltofal_reply "$current" ssid radio ;;
        "caltofal:wifi set:1")
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $(_caltofal_numbers "$program" "${gateway[@]}" "${given[0]}") ;;
        "caltofal:wifi radio:0" | "caltofal:wifi clients:0")
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $(_caltofal_numbers "$program" "${gateway[@]}" radio) ;;
        "caltofal:wifi ssid:0" | "caltofal:wifi acl:0")
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $(_caltofal_numbers "$program" "${gateway[@]}" ssid) ;;
        caltofal:apply:0) _caltofal_files "$current" -f ;;
        "caltofal:wifi set:"*)
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $("$program" "${gateway[@]}" wifi "${given[@]:0:2}" 2>/dev/null |
                sed '1d; s/ .*/=/; s/.*\.//' | sort -u) ;;
        "caltofal:wifi convert:0")
            # shellcheck disable=SC2046
            _caltofal_reply "$current" $("$program" wifi convert 2>/dev/null | sed 's/ .*//') ;;
        *)
            if [[ $(_caltofal_positional ${#given[@]} "${command[@]}") == INTERFACE ]]; then
                # shellcheck disable=SC2046
                _caltofal_reply "$current" $("$program" "${gateway[@]}" get Device.WiFi.SSID Name --values 2>/dev/null)
            fi ;;
    esac
}

# The shell sets COMP_WORDS and COMP_CWORD and takes COMPREPLY.
_caltofal() {
    local program=${COMP_WORDS[0]/#\~/$HOME} current=${COMP_WORDS[COMP_CWORD]}
    local -a command=("$program") given=() gateway=() verbs=() # noun and verb; other words; -g NAME
    local option="" kind="" object=""                          # an option that wants its word; the last Device.
    local help=""                                              # the word, where it may stand and does not yet
    [[ ${program##*/} == caltofal ]] && help=help
    COMPREPLY=()
    _caltofal_read "${COMP_WORDS[@]:1:COMP_CWORD-1}"
    [[ ${#given[@]} -eq 0 ]] && mapfile -t verbs < <(_caltofal_commands "${command[@]}")

    # shellcheck disable=SC2046
    if [[ $current == "=" || ${COMP_WORDS[COMP_CWORD - 1]} == "=" ]]; then
        return # a value
    elif [[ $option == --where ]]; then
        _caltofal_reply "$current" $(_caltofal_names "$object" "$program" "${gateway[@]}" | sed 's/$/=/')
    elif [[ -n $option ]]; then
        _caltofal_option_values "$current" "$option" "$kind" "${command[@]}"
    elif [[ ${given[0]:-} == -- ]]; then
        _caltofal_files "$current" "$([[ ${#given[@]} -eq 1 ]] && echo -c || echo -f)"
    elif [[ $current == -* ]]; then
        _caltofal_reply "$current" $({ _caltofal_options "${command[@]}"; _caltofal_options "$program"; } |
            sed 's/ .*//' | sort -u)
    elif [[ ${#verbs[@]} -gt 0 ]]; then
        _caltofal_reply "$current" "${verbs[@]}" $help
    else
        _caltofal_place
    fi
}

complete -F _caltofal caltofal caltofal-web caltofal-sandbox
