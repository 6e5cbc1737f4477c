# Copies the drawing FROM to TO, with the light theme's ink replaced by that of the dark theme.
file(READ "${FROM}" drawing)
string(REPLACE "#232629" "#fcfcfc" drawing "${drawing}")
file(WRITE "${TO}" "${drawing}")
