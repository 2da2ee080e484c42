# The slot tapped is the one the binding names; the models are still tested in model order.
# (The program always writes a model's own number there; a store edited by hand may not.)
model 1 = [6, 0, 12]
model 2 = [1, 0, 12]
down 12

84 down
84 up
89 down
89 up
