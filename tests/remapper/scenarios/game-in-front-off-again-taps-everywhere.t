# Turning the option off again brings back the taps in every program, from the next press.
model 4 = [4, 0, 31]
front notepad.exe
option game-in-front on
down 31         # nothing
option game-in-front off
down 31         # taps in the editor again

87 down
87 up
