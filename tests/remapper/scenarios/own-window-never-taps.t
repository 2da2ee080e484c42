# Keys typed into this program's own window are not observed: no tap, and the modifier state
# is left as it was.
model 1 = [1, 0, 12]
model 2 = [2, 56, 12]
own-window on
down 12
flags 56
down 12
state
own-window off
down 12

state flagHold=-1 isFlag=false isWarRun=false
89 down
89 up
