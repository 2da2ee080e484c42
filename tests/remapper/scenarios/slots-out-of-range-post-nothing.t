# Any slot but 1 to 6 posts nothing, also when a binding names it; a huge stored value does
# not wrap around to a real slot.
slot 0
slot 7
slot -1
slot 4294967297
model 1 = [0, 0, 12]
model 2 = [7, 0, 12]
model 3 = [4294967297, 0, 12]
model 4 = [-4294967295, 0, 12]
down 12

