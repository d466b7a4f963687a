# bash completion for loreka

_loreka()
{
    local cur prev words cword
    _init_completion || return

    case $prev in
        --encoding)
            COMPREPLY=($(compgen -W 'auto UTF-8 windows-1251 windows-1252 windows-1250 KOI8-R CP949 GBK Shift_JIS' -- "$cur"))
            return ;;
        --format)
            COMPREPLY=($(compgen -W 'png bmp jpg tiff' -- "$cur"))
            return ;;
        --palette)
            return ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--help --version --json --palette --format --sheet --encoding' -- "$cur"))
        return
    fi

    local command="" sub="" i
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
            --palette|--format|--encoding) ((i++)) ;;
            -*) ;;
            *) if [[ -z $command ]]; then command=${words[i]}; elif [[ -z $sub ]]; then sub=${words[i]}; fi ;;
        esac
    done

    case $command in
        "") COMPREPLY=($(compgen -W 'check dump roundtrip export dat' -- "$cur")) ;;
        check) _filedir -d ;;
        dump|roundtrip) _filedir '@(mes|dlg|scr|art|aap|pro|dat)' ;;
        export) _filedir ;;
        dat)
            if [[ -z $sub ]]; then
                COMPREPLY=($(compgen -W 'list extract pack verify' -- "$cur"))
            else
                _filedir
            fi ;;
    esac
} &&
    complete -F _loreka loreka
