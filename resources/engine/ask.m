% Asks the user by way of the link: prints a mark with the question, and reads the answer. When the
% link has closed, there is none, and the script can't go on.
function line = TOKENask (kind, question)
  mark = builtin ('sprintf', '\001TOKEN%s:%s\001\n', kind, question);
  builtin ('fprintf', 1, '%s', mark);
  builtin ('fflush', 1);
  [kind, numbers, line] = TOKENnext ();
  if kind == 'q', builtin ('exit'); end
end
