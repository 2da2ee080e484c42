# A binding on Return itself (only a store edited by hand can hold one) is judged with the chat
# line as it was before that Return: the Return that opens the line taps, the one that sends
# it does not.
option pause-in-chat on
model 5 = [5, 0, 36]
front com.blizzard.WarcraftIII
down 36         # line closed: taps, then the line opens
down 36         # line open: nothing, then the line closes
down 36         # taps again, and opens

83 down
83 up
83 down
83 up
