% Tells the link something by a mark in the output, which is written as a whole: at once, but for
% those after which the end of the script is told.
function TOKENtell (kind, text)
  persistent edge start
  if edge
  else
    mlock ();
    edge = builtin ('char', 1);
    start = [builtin('char', 10) edge 'TOKEN'];
  end
  builtin ('fprintf', 1, '%s', [start kind ':' text edge]);
  if kind ~= 'v' && kind ~= 'x' && kind ~= 'f', builtin ('fflush', 1); end
end
