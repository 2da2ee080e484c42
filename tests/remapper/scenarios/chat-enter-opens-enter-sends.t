# "Pause while typing in chat": Return opens the game's chat line and no bound key taps while it
# is open; the next Return sends the message and closes it.
option pause-in-chat on
model 1 = [1, 0, 12]
front com.blizzard.WarcraftIII
down 12         # taps
down 36         # Return: the chat line opens
focus-state
down 12         # typed into the chat line: nothing
down 12
down 36         # Return: sent, the line closes
focus-state
down 12         # taps again

89 down
89 up
focus-state gameInFront=true chatOpen=true
focus-state gameInFront=true chatOpen=false
89 down
89 up
