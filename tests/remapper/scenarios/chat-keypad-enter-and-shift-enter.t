# Keypad Enter does what Return does, and so does either with Shift held (the game's chat to
# all players).
option pause-in-chat on
model 1 = [1, 0, 12]
front com.blizzard.WarcraftIII
down 76         # keypad Enter opens
down 12         # nothing
down 36         # Return sends
flags 56        # Shift down
down 36         # Shift+Return opens
flags 56        # Shift up
down 12         # nothing
flags 56        # Shift down
down 76         # Shift+keypad Enter sends
flags 56        # Shift up
down 12         # taps
focus-state

89 down
89 up
focus-state gameInFront=true chatOpen=false
