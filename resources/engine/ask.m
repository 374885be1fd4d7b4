% Asks the user by way of the link: prints a mark with the question, and waits for a line.
function line = ASK (kind, question)
  builtin ('fprintf', 1, '%s', [char(1) 'TOKEN' kind ':' question char(1)]);
  builtin ('fflush', 1);
  line = builtin ('input', '', 's');
end
