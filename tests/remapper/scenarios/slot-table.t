# Slots 1 to 6 are keypad 7, 8, 4, 5, 1, 2: the keypad's left two columns in reading order.
slot 1
slot 2
slot 3
slot 4
slot 5
slot 6

89 down         # keypad 7
89 up
91 down         # keypad 8
91 up
86 down         # keypad 4
86 up
87 down         # keypad 5
87 up
83 down         # keypad 1
83 up
84 down         # keypad 2
84 up
