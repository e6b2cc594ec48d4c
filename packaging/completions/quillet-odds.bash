# Completion of quillet-odds for bash.
_quillet_odds()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    case $before in
    --format) COMPREPLY=($(compgen -W "text csv json" -- "$word")) ;;
    --pays) COMPREPLY=($(compgen -f -W "9/6 9/5 8/6 8/5 7/5 6/5" -- "$word")) ;;
    --chart | --card) COMPREPLY=($(compgen -f -- "$word")) ;;
    *) COMPREPLY=($(compgen -W "--mistakes --sitting --simulate --chart --best-chart --card --rows \
        --document --version --help --pays --all --bankroll --seed --plays --format --exact" \
        -- "$word")) ;;
    esac
}
complete -F _quillet_odds quillet-odds
