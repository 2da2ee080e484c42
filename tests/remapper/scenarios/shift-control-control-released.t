# Shift down, Control down, Control up: Shift is still held, but the last modifier event was
# Control's, so the Shift binding stays silent.
model 2 = [2, 56, 12]
flags 56        # Shift down
flags 59        # Control down
flags 59        # Control up
state
down 12

state flagHold=59 isFlag=true isWarRun=false
