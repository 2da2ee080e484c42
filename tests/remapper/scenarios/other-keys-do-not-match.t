# Only the bound key code fires its binding.
model 1 = [1, 0, 12]
model 2 = [2, 56, 13]
down 13
down 11
flags 56
down 12         # plain binding: still fires
down 14

89 down
89 up
