# Enter typed into another program does not open the game's chat line, and there the bound keys
# still tap (the chat option pauses nothing outside the game).
option pause-in-chat on
model 1 = [1, 0, 12]
front notepad.exe
down 36         # Return in the editor
focus-state
down 12         # taps in the editor
front com.blizzard.WarcraftIII
down 12         # taps in the game: its chat line is closed

focus-state gameInFront=false chatOpen=false
89 down
89 up
89 down
89 up
