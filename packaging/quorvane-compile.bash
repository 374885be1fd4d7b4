# Completion of quorvane-compile in bash. Its options are those of its help.
_quorvane_compile() {
    local cur prev words cword split
    _init_completion -s || return

    case $prev in
        -o | --output)
            _filedir m
            return
            ;;
        --answers)
            _filedir
            return
            ;;
        --picture)
            _filedir '@(svg|pdf|png)'
            return
            ;;
        --mode)
            COMPREPLY=($(compgen -W '0 1' -- "$cur"))
            return
            ;;
        --engine)
            COMPREPLY=($(compgen -c -- "$cur"))
            return
            ;;
        --set | --scale | --start-limit)
            return
            ;;
    esac
    $split && return

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '$(_parse_help "$1")' -- "$cur"))
    else
        _filedir qvm
    fi
} && complete -F _quorvane_compile quorvane-compile
