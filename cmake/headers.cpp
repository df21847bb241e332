// Holds nothing: the headers that are compiled once for all belong to a target, and a target needs a source.
