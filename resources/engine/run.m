% Runs one script. What it prints stands between the marks "b" and "e", which carry its number.
% `boxes` are the numbers of those whose values the link asks for.
% A line is evaluated as it is. A script of several lines is read from a file of the engine's own, so
% that nothing of it runs unless all of it can be read, and an error has its line.
function TOKENrun (id, boxes, text)
  mlock ();
  id = builtin ('sprintf', '%d', id);
  problem = [];
  file = '';
  if builtin ('any', text == 10), file = TOKENstore (text); end
  TOKENtell ('b', id);
  try
    if builtin ('isempty', file)
      TOKENevaluate (text);
    else
      gone = onCleanup (@() builtin ('unlink', file));
      step = ['TOKENstep' id];
      builtin ('autoload', step, file);
      TOKENevaluate (step);
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
  if ~builtin ('isempty', file), builtin ('autoload', step, file, 'remove'); end
  TOKENtell ('e', id);
end
