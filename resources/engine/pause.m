% Takes the place of the engine's own function: waiting for a key is a message of the program.
function pause (seconds)
  if nargin > 0 && isnumeric (seconds) && isfinite (seconds)
    builtin ('pause', seconds);
  elseif nargin == 0 || isnumeric (seconds)
    TOKENask ('p', '');
  end
end
