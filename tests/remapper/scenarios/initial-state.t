# At start: no modifier seen (-1), parity off, game flag off until the first tick, even with
# the game already in front.
front com.blizzard.WarcraftIII
state

state flagHold=-1 isFlag=false isWarRun=false
