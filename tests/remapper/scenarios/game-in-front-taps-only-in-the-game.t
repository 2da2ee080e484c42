# "Only while the game is in front": a bound key taps while the game's window is in front, and
# not while another program's window is, or none.
option game-in-front on
model 1 = [1, 0, 12]
front com.blizzard.WarcraftIII
down 12         # taps
front notepad.exe
down 12         # another program: nothing
front none
down 12         # no window in front: nothing
front com.blizzard.WarcraftIII
down 12         # back in the game: taps again

89 down
89 up
89 down
89 up
