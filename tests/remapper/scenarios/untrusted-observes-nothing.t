# Without the trust to watch other applications nothing is observed and the remapper stays
# silent; once trusted it works.
model 1 = [1, 0, 12]
trust off
flags 56
down 12
state
trust on
down 12

state flagHold=-1 isFlag=false isWarRun=false
89 down
89 up
