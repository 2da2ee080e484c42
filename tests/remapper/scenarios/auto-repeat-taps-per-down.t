# Holding a bound key: every auto-repeated key-down taps the slot once more. Key releases are
# not observed; each tap is complete at its key-down.
model 1 = [1, 0, 12]
down 12
down 12
down 12

89 down
89 up
89 down
89 up
89 down
89 up
