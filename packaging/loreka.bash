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
            _filedir aap
            return ;;
        --from)
            _filedir art
            return ;;
        --as)
            COMPREPLY=($(compgen -W 'flag var script message' -- "$cur"))
            return ;;
        --fps|--action|--hotspot|--number)
            return ;;
        -o|--output)
            _filedir
            return ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--help --version --json --notes --palette --format --sheet --output --encoding --from --dither --fps --action --hotspot --regex --case --number --as' -- "$cur"))
        return
    fi

    local command="" sub="" i
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
            --palette|--format|--encoding|--from|--fps|--action|--hotspot|--number|--as|-o|--output) ((i++)) ;;
            -*) ;;
            *) if [[ -z $command ]]; then command=${words[i]}; elif [[ -z $sub ]]; then sub=${words[i]}; fi ;;
        esac
    done

    case $command in
        "") COMPREPLY=($(compgen -W 'check dump roundtrip export art dat find script' -- "$cur")) ;;
        check) _filedir '@(mes|dlg|scr|art|aap|pro)' ;;
        find) [[ -n $sub ]] && _filedir -d ;;
        dump|roundtrip) _filedir '@(mes|dlg|scr|art|aap|pro|dat)' ;;
        export) _filedir ;;
        art)
            if [[ -z $sub ]]; then
                COMPREPLY=($(compgen -W 'export import from-images info' -- "$cur"))
            else
                _filedir
            fi ;;
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
