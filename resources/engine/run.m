% Runs one script. What it prints stands between the marks "b" and "e", which carry its number.
% `boxes` are the numbers of those whose values the link asks for.
% A line is evaluated as it is. A script of several lines is read from a file of the engine's own, so
% that nothing of it runs unless all of it can be read, and an error has its line.
function TOKENrun (id, boxes, text)
  persistent isLocked
  if isLocked, else, mlock (); isLocked = true; end
  id = builtin ('sprintf', '%d', id);
  problem = [];
  file = '';
  isStored = false;
  if builtin ('any', text == 10)
    file = TOKENstore (text);
    isStored = ~builtin ('isempty', file);
  end
  TOKENtell ('b', id);
  try
    if isStored
      gone = onCleanup (@() builtin ('unlink', file));
      step = ['TOKENstep' id];
      builtin ('autoload', step, file);
      TOKENevaluate (step);
    else
      TOKENevaluate (text);
    end
  catch problem
  end
  % A "clear" may have taken away those that aren't locked.
  if builtin ('exist', 'TOKENvalue') == 0
    TOKENtell ('h', '');
    [kind, numbers, text] = TOKENnext ();
    evalin ('base', text);
  end
  TOKENafter (boxes, problem, file);
  if isStored, builtin ('autoload', step, file, 'remove'); end
  TOKENtell ('e', id);
end
