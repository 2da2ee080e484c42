# Two bindings on Q, one plain and one with Shift; Shift held: both fire, model 3 first
# (its plain test) and then model 4 (its Shift test).
model 3 = [3, 0, 12]
model 4 = [4, 56, 12]
flags 56        # Shift down
down 12

86 down         # keypad 4
86 up
87 down         # keypad 5
87 up
