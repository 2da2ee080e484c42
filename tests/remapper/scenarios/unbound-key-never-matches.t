# A slot bound to "Select" ([N, 0, -1] or [N, 56, -1]) counts as bound but no key matches it:
# observed key codes are never negative.
model 1 = [1, 0, -1]
model 2 = [2, 56, -1]
down 12
down 0
down 65535
flags 56
down 12
down 0
down 65535

