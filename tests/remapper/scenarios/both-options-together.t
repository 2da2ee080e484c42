# Both options on: a bound key taps only in the game, and there only while its chat line is
# closed.
option game-in-front on
option pause-in-chat on
model 6 = [6, 0, 0]
front com.blizzard.WarcraftIII
down 0          # taps
down 36         # opens
down 0          # nothing: chat
front notepad.exe
down 0          # nothing: not the game
front com.blizzard.WarcraftIII
down 0          # taps: the line was closed when the game lost the focus

84 down
84 up
84 down
84 up
