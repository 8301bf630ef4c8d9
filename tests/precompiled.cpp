// Has nothing of its own: the header that all test programs share is precompiled for it.
