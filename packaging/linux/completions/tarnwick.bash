# Completion of tarnwick for bash, read by bash-completion when it is first asked for.

_tarnwick()
{
    local cur prev words cword split
    _init_completion || return
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--help --version' -- "$cur"))
        return
    fi
    _filedir '@(tarnwickrun)'
} &&
    complete -F _tarnwick tarnwick
