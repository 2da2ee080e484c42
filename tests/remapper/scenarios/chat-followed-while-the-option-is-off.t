# The chat line is followed whether the option is on or not; it pauses the taps only while the
# option is on.
model 1 = [1, 0, 12]
front com.blizzard.WarcraftIII
down 36         # opens
down 12         # the option is off: taps
focus-state
option pause-in-chat on
down 12         # nothing
down 36         # sends
down 12         # taps

89 down
89 up
focus-state gameInFront=true chatOpen=true
89 down
89 up
