# Completion of quillet-odds for fish.
complete -c quillet-odds -f
complete -c quillet-odds -l mistakes -d 'The deals that a chart plays wrongly'
complete -c quillet-odds -l sitting -x -d 'How a session turns out'
complete -c quillet-odds -l simulate -x -d "Play hands from the trainer's shuffle"
complete -c quillet-odds -l chart -r -F -d 'What a chart of your own costs'
complete -c quillet-odds -l best-chart -x -d 'The best chart with that many rows'
complete -c quillet-odds -l card -r -F -d 'A chart as a page to print'
complete -c quillet-odds -l rows -d 'The rows that a chart can have'
complete -c quillet-odds -l version -d 'The version'
complete -c quillet-odds -s h -l help -d 'A short help text'
complete -c quillet-odds -l pays -r -F -a '9/6 9/5 8/6 8/5 7/5 6/5' -d 'The pay table'
complete -c quillet-odds -l all -d 'All 32 holds of a hand'
complete -c quillet-odds -l bankroll -x -d 'Credits of a session'
complete -c quillet-odds -l seed -x -d 'Seed of the random numbers'
complete -c quillet-odds -l plays -d 'Each deal with the hold of a chart'
complete -c quillet-odds -l format -x -a 'text csv json' -d 'The form of the answer'
complete -c quillet-odds -l exact -d 'Fractions in text'
