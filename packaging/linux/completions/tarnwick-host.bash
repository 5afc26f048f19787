# Completion of tarnwick-host for bash, read by bash-completion when it is first asked for.

# Of the word at the cursor, which is no option. Names of runs are the first words of the list's lines.
_tarnwick_host_operand()
{
    case ${words[1]} in
        run | check | facts | smart-report)
            _filedir -d
            ;;
        show | card)
            _filedir '@(tarnwickrun|json)'
            ;;
        history)
            local names='list show export delete'
            if ((cword > 2)); then
                names=$(tarnwick-host history list 2>/dev/null | grep -oE '^[0-9A-F]{8,}')
            fi
            COMPREPLY=($(compgen -W "$names" -- "$cur"))
            ;;
    esac
}

_tarnwick_host()
{
    local cur prev words cword split
    _init_completion -s || return

    if ((cword == 1)); then
        COMPREPLY=($(compgen -W 'run check show history card facts volumes smart-report --help --version' -- "$cur"))
        return
    fi
    local options
    case ${words[1]} in
        run) options='--tests --size --leave-free --write-block --read-block --random-block --random-ops --file-ops --cached --sample-interval --json --output --force --keep --handoff --card --help' ;;
        check) options='--size --leave-free --quick --again --json --help' ;;
        show) options='--format --help' ;;
        history) options='--format --output --force --all --help' ;;
        card) options='--dark --help' ;;
        facts) options='--json --help' ;;
        volumes) options='--json --help' ;;
        smart-report) options='--help' ;;
        *) return ;;
    esac
    # Behind "--" there are operands only.
    local word
    for word in "${words[@]:2:cword-2}"; do
        if [[ $word == -- ]]; then
            _tarnwick_host_operand
            return
        fi
    done

    case ${words[1]},$prev in
        run,--tests)
            local before=
            [[ $cur == *,* ]] && before=${cur%,*},
            COMPREPLY=($(compgen -P "$before" -W 'sequentialWrite sequentialRead randomRead randomWrite fileOps' -- "${cur##*,}"))
            compopt -o nospace
            return
            ;;
        run,--size)
            COMPREPLY=($(compgen -W '1GiB 5GiB 10GiB 20GiB 64GiB fill' -- "$cur"))
            return
            ;;
        run,--leave-free | check,--leave-free)
            COMPREPLY=($(compgen -W '0 64MiB 1GiB' -- "$cur"))
            return
            ;;
        run,--write-block | run,--read-block)
            COMPREPLY=($(compgen -W '4KiB 64KiB 1MiB 4MiB' -- "$cur"))
            return
            ;;
        run,--random-block)
            COMPREPLY=($(compgen -W '4KiB 16KiB 64KiB' -- "$cur"))
            return
            ;;
        run,--random-ops | run,--file-ops | run,--sample-interval | check,--again)
            return
            ;;
        run,--output | history,--output)
            _filedir
            return
            ;;
        run,--card)
            COMPREPLY=($(compgen -W 'light dark' -- "$cur"))
            return
            ;;
        check,--size)
            COMPREPLY=($(compgen -W '1GiB 5GiB 10GiB 20GiB 64GiB all' -- "$cur"))
            return
            ;;
        show,--format | history,--format)
            COMPREPLY=($(compgen -W 'text markdown csv json' -- "$cur"))
            return
            ;;
    esac
    # "--json=" has no value.
    $split && return

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
        return
    fi
    _tarnwick_host_operand
} &&
    complete -F _tarnwick_host tarnwick-host
