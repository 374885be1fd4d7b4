% Takes the place of the engine's own function: asks for one command after another and runs it where
% the script stands, until an empty line, "return" or "dbcont".
function keyboard (varargin)
  while true
    line = strtrim (TOKENask ('i', 'keyboard> '));
    if any (strcmp (line, {'', 'return', 'dbcont', 'dbquit'})), return; end
    try
      evalin ('caller', line);
    catch problem
      builtin ('fprintf', 1, 'error: %s\n', problem.message);
    end
  end
end
