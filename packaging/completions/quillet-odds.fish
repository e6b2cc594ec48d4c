# Completion of quillet-odds for fish.
complete -c quillet-odds -f
complete -c quillet-odds -l mistakes -d 'The deals that the chart misplays'
complete -c quillet-odds -l break-even -d 'The royal at which perfect play returns 100 %'
complete -c quillet-odds -l sitting -x -d 'How a session of that many hands turns out'
complete -c quillet-odds -l simulate -x -d "Play that many hands with the trainer's own shuffle"
complete -c quillet-odds -l chart -r -F -d 'What a chart of your own costs'
complete -c quillet-odds -l best-chart -x -d 'The best chart found with at most that many rows'
complete -c quillet-odds -l card -r -F -d 'Write a chart as a page to print'
complete -c quillet-odds -l rows -d 'The rows that a chart can have'
complete -c quillet-odds -l version -d 'Print the version'
complete -c quillet-odds -s h -l help -d 'Print a short help text'
complete -c quillet-odds -l pays -r -F -a '9/6 9/5 8/6 8/5 7/5 6/5' -d 'The pay table'
complete -c quillet-odds -l all -d 'All 32 holds of a hand'
complete -c quillet-odds -l bankroll -x -d 'The chance that these credits run out'
complete -c quillet-odds -l seed -x -d 'Seed of the random numbers'
complete -c quillet-odds -l plays -d 'Every deal and the chart\'s hold'
complete -c quillet-odds -l format -x -a 'text csv json' -d 'Text, csv or json'
complete -c quillet-odds -l exact -d 'Fractions in text too'
