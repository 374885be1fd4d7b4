% Tells the link something by a mark in the output, which is written at once as a whole.
function TOKENtell (kind, text)
  persistent edge start
  if edge
  else
    mlock ();
    edge = builtin ('char', 1);
    start = [builtin('char', 10) edge 'TOKEN'];
  end
  builtin ('fprintf', 1, '%s', [start kind ':' text edge]);
  builtin ('fflush', 1);
end
