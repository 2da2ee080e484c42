# "Only while the game is in front" before any window is announced: the game is not known to be
# in front, so nothing taps (as without a window manager that names its active window).
option game-in-front on
model 3 = [3, 0, 14]
down 14
focus-state

focus-state gameInFront=false chatOpen=false
