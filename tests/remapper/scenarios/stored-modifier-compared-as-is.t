# The stored modifier code is compared with the last modifier event as it is. The program only
# writes 56 or 0, but a store edited by hand may hold another code (here Control, 59).
model 3 = [3, 59, 12]
down 12
flags 59
down 12
flags 56
down 12

86 down
86 up
