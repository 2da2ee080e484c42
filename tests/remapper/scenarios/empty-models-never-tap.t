# Unbound slots tap nothing, whatever is pressed.
model 1 = []
down 12
flags 56
down 12
down 0

