% Runs one script that the link sent. What the script prints stands between the marks "b" and "e",
% which carry its number. Where the script doesn't come to its end, because the user broke it off or
% because it ended the engine, the mark "u" stands in place of "e".
% Nothing here lives where the script can change it: the name of this function is drawn by lot, and
% its variables are its own.
% Without a script it only looks after the figures.
function RUN (file, id)
  if nargin == 0
    try, drawnow (); catch, end
    return;
  end
  persistent isOctave folder
  if isempty (folder)
    isOctave = exist ('OCTAVE_VERSION', 'builtin') > 0;
    folder = fileparts (mfilename ('fullpath'));
  end
  if isempty (strfind (path (), folder)), addpath (folder); end
  tell ('b', id);
  unwinding = onCleanup (@() tell ('u', id));
  try
    if isOctave, builtin ('source', file, 'base'); else, evalin ('base', fileread (file)); end
    showFigures ();
  catch problem
    complain (problem);
  end
  tell ('e', id);
end

function tell (kind, id)
  mark = [char(10) char(1) 'TOKEN' kind ':' id char(1)];
  % The second way is for the case that the script made functions of the names of the first.
  try, builtin ('fprintf', 1, '%s', mark);  builtin ('fflush', 1); catch, end
  if kind ~= 'b' && kind ~= 'f'
    try, puts (mark);  fflush (1); catch, end
  end
end

% The link lets the engine look after its figures while it has nothing else to do.
function showFigures ()
  if isempty (builtin ('get', 0, 'children')), return; end
  drawnow ();
  tell ('f', '');
end

function complain (problem)
  prefix = 'error: ';
  if strncmp (problem.message, 'parse error', 11), prefix = ''; end
  builtin ('fprintf', 1, '%s%s\n', prefix, problem.message);
end
