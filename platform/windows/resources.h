// Numbers of what is bound into the program; the resource compiler reads this too.
#define kProgramIcon 1
