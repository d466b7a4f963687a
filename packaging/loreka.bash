# bash completion for loreka

_loreka()
{
    local cur prev words cword
    _init_completion || return

    case $prev in
        --encoding)
            COMPREPLY=($(compgen -W 'UTF-8 windows-1251 windows-1252 windows-1250 KOI8-R' -- "$cur"))
            return ;;
        --format)
            COMPREPLY=($(compgen -W 'png bmp jpg tiff' -- "$cur"))
            return ;;
        --palette)
            return ;;
        -o|--output)
            _filedir
            return ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--help --version --json --palette --format --sheet --output --encoding' -- "$cur"))
        return
    fi

    local command="" sub="" i
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
            --palette|--format|--encoding|-o|--output) ((i++)) ;;
            -*) ;;
            *) if [[ -z $command ]]; then command=${words[i]}; elif [[ -z $sub ]]; then sub=${words[i]}; fi ;;
        esac
    done

    case $command in
        "") COMPREPLY=($(compgen -W 'check dump roundtrip export dat script' -- "$cur")) ;;
        check) _filedir -d ;;
        dump|roundtrip) _filedir '@(mes|dlg|scr|art|aap|pro|dat)' ;;
        export) _filedir ;;
        dat)
            if [[ -z $sub ]]; then
                COMPREPLY=($(compgen -W 'list extract pack verify' -- "$cur"))
            else
                _filedir
            fi ;;
        script)
            case $sub in
                "") COMPREPLY=($(compgen -W 'decompile compile decompile-all compile-all' -- "$cur")) ;;
                decompile) _filedir scr ;;
                compile) _filedir txt ;;
                *) _filedir -d ;;
            esac ;;
    esac
} &&
    complete -F _loreka loreka
