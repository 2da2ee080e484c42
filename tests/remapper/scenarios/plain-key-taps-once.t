# A binding without modifier: Q (12) in another application taps keypad 7 once.
model 1 = [1, 0, 12]
down 12

89 down
89 up
