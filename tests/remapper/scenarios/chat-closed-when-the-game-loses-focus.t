# The chat line counts as closed once the game is no longer in front, whatever was typed; back
# in the game, bound keys tap at once.
option pause-in-chat on
model 1 = [1, 0, 12]
front com.blizzard.WarcraftIII
down 36         # opens
front notepad.exe
focus-state
front com.blizzard.WarcraftIII
down 12         # taps
focus-state

focus-state gameInFront=false chatOpen=false
89 down
89 up
focus-state gameInFront=true chatOpen=false
