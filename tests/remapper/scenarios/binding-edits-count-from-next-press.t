# The bindings are read afresh on every key press: an edit counts from the next press, an
# erased slot stops at once.
model 1 = [1, 0, 12]
down 12
model 1 = [1, 0, 13]
down 12
down 13
model 1 = []
down 13

89 down
89 up
89 down
89 up
