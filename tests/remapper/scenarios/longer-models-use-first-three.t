# Elements after the third are not read.
model 1 = [1, 0, 12, 99, 99]
down 12

89 down
89 up
