# Shift+Q taps keypad 8 while Shift is down; once Shift is up the parity bit is off again and
# Q alone taps nothing.
model 2 = [2, 56, 12]
down 12         # no modifier event yet
flags 56        # Shift down
down 12
flags 56        # Shift up
state
down 12

91 down
91 up
state flagHold=56 isFlag=false isWarRun=false
