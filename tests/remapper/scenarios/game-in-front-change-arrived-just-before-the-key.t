# A window change that has arrived but not been read yet when a key goes down is taken in
# before the decision: the key is judged by the window it was typed into.
option game-in-front on
model 1 = [1, 0, 12]
front-unread com.blizzard.WarcraftIII
down 12         # taps
front-unread notepad.exe
down 12         # nothing

89 down
89 up
