# When the key-down cannot be posted, the key-up is still posted on its own; the next tap is
# whole again.
slot 1
fail-next-down
slot 1
slot 1
model 2 = [2, 0, 12]
fail-next-down
down 12
down 12

89 down
89 up
89 up
89 down
89 up
91 up
91 down
91 up
