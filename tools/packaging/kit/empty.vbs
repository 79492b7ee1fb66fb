' Does nothing: Wine's cscript registers a type library of its own when it first starts.
