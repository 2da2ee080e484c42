# Shift down, Control down, Shift up: the parity bit is on and the last modifier event was
# Shift's, so the Shift binding fires although Shift is up.
model 2 = [2, 56, 12]
flags 56        # Shift down
flags 59        # Control down
flags 56        # Shift up
state
down 12

state flagHold=56 isFlag=true isWarRun=false
91 down
91 up
