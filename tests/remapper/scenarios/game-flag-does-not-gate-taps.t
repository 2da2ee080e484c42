# Taps do not wait for the game: the same binding taps with the game in front, with nothing
# in front, and before the first tick.
model 4 = [4, 0, 31]
down 31         # O, before any tick
front com.blizzard.WarcraftIII
tick
down 31
front none
tick
down 31

87 down
87 up
87 down
87 up
87 down
87 up
