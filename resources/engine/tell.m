% Tells the link something by a mark in the output, which is written at once as a whole.
function TOKENtell (kind, text)
  mlock ();
  mark = builtin ('sprintf', '\n\001TOKEN%s:%s\001', kind, text);
  builtin ('fprintf', 1, '%s', mark);
  builtin ('fflush', 1);
end
