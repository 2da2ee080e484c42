# Each press is a complete tap: down, up, down, up, never two downs in a row.
slot 1
slot 1
model 6 = [6, 0, 12]
down 12
down 12

89 down
89 up
89 down
89 up
84 down
84 up
84 down
84 up
