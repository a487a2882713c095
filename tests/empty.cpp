// Gives the precompiled headers a file to be compiled with.
