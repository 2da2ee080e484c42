# A binding without modifier ignores the modifiers: Shift held, Q still taps keypad 7.
model 1 = [1, 0, 12]
flags 56        # Shift down
down 12
state

89 down
89 up
state flagHold=56 isFlag=true isWarRun=false
