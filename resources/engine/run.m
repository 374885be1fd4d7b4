% Runs one script that the link sent. What the script prints stands between the marks "b" and "e",
% which carry its number; the end mark comes whatever the script does, a break by the user included.
% Nothing here lives where the script can change it: the name of this function is drawn by lot, its
% variables are its own, and it can't be cleared.
function RUN (file, id)
  persistent isOctave
  if isempty (isOctave)
    mlock ();
    isOctave = exist ('OCTAVE_VERSION', 'builtin') > 0;
  end
  tell ('b', id);
  ending = onCleanup (@() tell ('e', id));
  try
    if isOctave, builtin ('source', file, 'base'); else, evalin ('base', fileread (file)); end
    showFigures ();
  catch problem
    complain (problem);
  end
end

function tell (kind, id)
  mark = [char(10) char(1) 'TOKEN' kind ':' id char(1)];
  % The second way is for the case that the script made functions of the names of the first.
  try, builtin ('fprintf', 1, '%s', mark);  builtin ('fflush', 1); catch, end
  if kind == 'e'
    try, puts (mark);  fflush (1); catch, end
  end
end

function showFigures ()
  if ~isempty (builtin ('get', 0, 'children')), drawnow (); end
end

function complain (problem)
  prefix = 'error: ';
  if strncmp (problem.message, 'parse error', 11), prefix = ''; end
  builtin ('fprintf', 1, '%s%s\n', prefix, problem.message);
end
