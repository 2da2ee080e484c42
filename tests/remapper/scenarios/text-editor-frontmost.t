# Taps go to whatever is frontmost, not only the game: with a text editor in front the bound
# key still taps keypad 7, and the game flag is off.
model 1 = [1, 0, 12]
front org.gnome.TextEditor
tick
down 12
state

89 down
89 up
state flagHold=-1 isFlag=false isWarRun=false
