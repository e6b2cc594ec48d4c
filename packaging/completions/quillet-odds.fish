# Completion of quillet-odds for fish.
complete -c quillet-odds -f
complete -c quillet-odds -l mistakes -d 'The deals that a chart plays wrongly'
complete -c quillet-odds -l sitting -x -d 'What so many hands come to'
complete -c quillet-odds -l simulate -x -d "Play hands from the trainer's shuffle"
complete -c quillet-odds -l chart -r -F -d 'The price of a chart'
complete -c quillet-odds -l best-chart -x -d 'The best chart with so many rows'
complete -c quillet-odds -l card -r -F -d 'A chart as a page to print'
complete -c quillet-odds -l rows -d 'The rows that a chart can have'
complete -c quillet-odds -l document -d 'Everything as a page in Markdown'
complete -c quillet-odds -l version -d 'The version'
complete -c quillet-odds -s h -l help -d 'A short help text'
complete -c quillet-odds -l pays -x -a '9/6 9/5 8/6 8/5 7/5 6/5' -d 'The pay table'
complete -c quillet-odds -l all -d 'All 32 holds of a hand'
complete -c quillet-odds -l bankroll -x -d 'Credits of a sitting'
complete -c quillet-odds -l seed -x -d 'Chances of a simulation'
complete -c quillet-odds -l plays -d 'Each deal with the hold of a chart'
complete -c quillet-odds -l format -x -a 'text csv json' -d 'The form of the answer'
complete -c quillet-odds -l exact -d 'Fractions in text'
