# A Shift binding names the left Shift (56); the right Shift (60) is another key.
model 2 = [2, 56, 12]
flags 60        # right Shift down
state
down 12

state flagHold=60 isFlag=true isWarRun=false
