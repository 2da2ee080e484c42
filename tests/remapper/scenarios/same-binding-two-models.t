# Nothing stops two slots from sharing a binding: both fire, lower model first.
model 5 = [5, 0, 14]
model 2 = [2, 0, 14]
down 14         # E

91 down         # slot 2: keypad 8
91 up
83 down         # slot 5: keypad 1
83 up
