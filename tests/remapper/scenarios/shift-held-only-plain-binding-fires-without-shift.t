# The same two bindings without Shift: only the plain one fires.
model 3 = [3, 0, 12]
model 4 = [4, 56, 12]
down 12

86 down
86 up
