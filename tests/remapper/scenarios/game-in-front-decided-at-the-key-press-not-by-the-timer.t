# The option asks which window is in front at the moment of the key press, not what the
# 2-second timer last found: isWarRun plays no part.
option game-in-front on
model 2 = [2, 0, 13]
front com.blizzard.WarcraftIII
down 13         # taps although no tick has found the game yet
state
tick
front notepad.exe
down 13         # nothing although the last tick found the game
state

91 down
91 up
state flagHold=-1 isFlag=false isWarRun=false
state flagHold=-1 isFlag=false isWarRun=true
