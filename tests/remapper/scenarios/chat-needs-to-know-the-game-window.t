# Without word of the window in front (no window manager naming its active window) the game is
# never known to be in front: Enter opens nothing and the chat option pauses nothing.
option pause-in-chat on
model 1 = [1, 0, 12]
down 36
down 12         # taps
focus-state

89 down
89 up
focus-state gameInFront=false chatOpen=false
