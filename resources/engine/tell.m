% Tells the link something by a mark in the output, which is written as a whole: at once, but for
% those after which the end of the script is told. A mark ends its line, because what stands between
% the engine and the link, such as a batch system, may pass on whole lines only.
function TOKENtell (kind, text)
  persistent edge start finish
  if edge
  else
    mlock ();
    edge = builtin ('char', 1);
    start = [builtin('char', 10) edge 'TOKEN'];
    finish = [edge builtin('char', 10)];
  end
  builtin ('fprintf', 1, '%s', [start kind ':' text finish]);
  if kind ~= 'v' && kind ~= 'x' && kind ~= 'f', builtin ('fflush', 1); end
end
