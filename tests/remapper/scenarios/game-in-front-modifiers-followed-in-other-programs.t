# The modifier state keeps following every modifier event, wherever it was typed: Shift pressed
# in another program still counts once the game is in front.
option game-in-front on
model 2 = [2, 56, 12]
front notepad.exe
flags 56        # Shift down in the editor
down 12         # nothing: the editor is in front
front com.blizzard.WarcraftIII
down 12         # taps: Shift is still taken as held
state

91 down
91 up
state flagHold=56 isFlag=true isWarRun=false
