# Escape closes the chat line without sending; with the line closed it leaves it closed (it does
# not toggle, as Enter does).
option pause-in-chat on
model 1 = [1, 0, 12]
front com.blizzard.WarcraftIII
down 36         # opens
down 53         # Escape closes
down 12         # taps
down 53         # Escape again: still closed
down 12         # taps
down 36         # opens
focus-state

89 down
89 up
89 down
89 up
focus-state gameInFront=true chatOpen=true
