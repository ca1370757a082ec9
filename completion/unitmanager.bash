# Completion of unitmanager in bash. The words come from `unitmanager complete`; this file reads the command line and
# quotes the words.

# Reads the command line up to the cursor, which is the argument. Sets in the caller:
#   words  the complete words, without quotes; the first one is the program
#   word   the beginning of the last word, without quotes
#   quote  the quote that is still open in it
#   kept   what readline keeps of it: the part before the last break, such as --severity=
_unitmanager_read() {
    local line=$1 character kept_outside='' is_word='' i
    words=() word='' quote='' kept=''
    for ((i = 0; i < ${#line}; ++i)); do
        character=${line:i:1}
        if [[ $character == "$quote" ]]; then
            quote='' kept=$kept_outside
        elif [[ $quote == \' ]]; then
            word+=$character
        elif [[ $character == \\ ]]; then
            # Between double quotes, other characters keep their backslash.
            [[ -n $quote && ${line:i+1:1} != [\"\$\`\\] ]] && word+=\\
            ((++i))
            word+=${line:i:1} is_word=1
        elif [[ -n $quote ]]; then
            word+=$character
        elif [[ $character == [\'\"] ]]; then
            quote=$character kept_outside=$kept kept=$word is_word=1
        elif [[ $character == [[:space:]] ]]; then
            [[ -z $is_word ]] || words+=("$word")
            word='' kept='' is_word=''
        else
            word+=$character is_word=1
            [[ $COMP_WORDBREAKS != *"$character"* ]] || kept=$word
        fi
    done
}

# Sets `quoted` in the caller to a text as it is typed after an open quote.
_unitmanager_quote() { # text, open quote
    local special=$' \t!"#$&\'()*;<>?[\\]^`{|}~' character i
    [[ $2 != \" ]] || special='"$`\'
    quoted=''
    for ((i = 0; i < ${#1}; ++i)); do
        character=${1:i:1}
        if [[ $2 == \' ]]; then
            [[ $character != \' ]] || character="'\\''"
        elif [[ $2 == \" && $character == ! ]]; then
            # The history is also expanded between double quotes, where no backslash prevents it.
            character='"\!"'
        elif [[ $special == *"$character"* ]]; then
            character="\\$character"
        fi
        quoted+=$character
    done
}

_unitmanager() {
    local words word quote kept quoted line candidate
    _unitmanager_read "${COMP_LINE:0:COMP_POINT}"
    COMPREPLY=()
    while IFS= read -r line; do
        if [[ $line == FILE ]]; then
            compopt -o default
            continue
        fi
        candidate=${line%%$'\t'*}
        [[ $candidate == "$word"* ]] || continue
        _unitmanager_quote "${candidate#"$kept"}" "$quote"
        COMPREPLY+=("$quoted")
    done < <(DEVICE_BUS_TIMEOUT_MS=${DEVICE_BUS_TIMEOUT_MS:-1000} "$1" complete -- "${words[@]:1}" "$word" 2>/dev/null)
}

complete -o nosort -F _unitmanager unitmanager
