# Completion of quillet-odds for bash.
_quillet_odds()
{
    local word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]} action=()
    # The shell splits --option=value at the equals sign.
    if [[ $word == = ]]; then
        word=
    elif [[ $option == = ]]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    word=${word#[\"\']}
    word=${word//\\/}
    case $option in
    --format) action=(-W "text csv json") ;;
    --pays) action=(-W "9/6 9/5 8/6 8/5 7/5 6/5") ;;
    --lines) action=(-W "3 5 10 50 100") ;;
    --chart | --card) ;;
    --sitting | --simulate | --best-chart | --bankroll | --bring | --seed) return ;;
    *) action=(-W "--mistakes --break-even --sitting --simulate --chart --best-chart --card --rows
        --self-test --version --help --pays --all --bankroll --bring --lines --seed --plays --format
        --exact") ;;
    esac
    COMPREPLY=()
    [[ ${#action[@]} == 0 ]] || mapfile -t COMPREPLY < <(compgen "${action[@]}" -- "$word")
    if [[ $option =~ ^--(chart|card|pays)$ && ${#COMPREPLY[@]} == 0 ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _quillet_odds quillet-odds
