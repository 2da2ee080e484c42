# The timer sets isWarRun from the frontmost application: true only for the game's identifier
# (exactly), false for none and for anything else. Nothing else changes it.
front none
tick
state
front com.blizzard.WarcraftIII
state           # not before the next tick
tick
state
front notepad.exe
tick
state
front com.blizzard.WarcraftIII
tick
state
front none
tick
state
front com.blizzard.warcraftiii
tick
state
front com.blizzard.WarcraftIII.helper
tick
state

state flagHold=-1 isFlag=false isWarRun=false
state flagHold=-1 isFlag=false isWarRun=false
state flagHold=-1 isFlag=false isWarRun=true
state flagHold=-1 isFlag=false isWarRun=false
state flagHold=-1 isFlag=false isWarRun=true
state flagHold=-1 isFlag=false isWarRun=false
state flagHold=-1 isFlag=false isWarRun=false
state flagHold=-1 isFlag=false isWarRun=false
