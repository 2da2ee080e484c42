# Two slots sharing a Shift binding both fire too, in model order.
model 6 = [6, 56, 18]
model 1 = [1, 56, 18]
flags 56
down 18         # 1

89 down
89 up
84 down
84 up
