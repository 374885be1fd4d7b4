% Takes the place of the engine's own function: the question comes up as a dialog of the program.
function answer = input (question, kind)
  if nargin == 0, question = ''; end
  while true
    line = TOKENask ('i', question);
    if nargin > 1
      answer = line;
      return;
    end
    if isempty (strtrim (line))
      answer = [];
      return;
    end
    try
      answer = evalin ('caller', line);
      return;
    catch problem
      builtin ('fprintf', 1, 'error: %s\n', problem.message);
    end
  end
end
