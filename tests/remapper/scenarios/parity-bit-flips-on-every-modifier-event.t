# Every modifier event flips the parity bit, press or release, of any modifier key.
flags 56
state
flags 57        # Caps Lock
state
flags 55        # Command
state
flags 55
state

state flagHold=56 isFlag=true isWarRun=false
state flagHold=57 isFlag=false isWarRun=false
state flagHold=55 isFlag=true isWarRun=false
state flagHold=55 isFlag=false isWarRun=false
