% The next request of the link: its kind, its numbers and its text. A request is a line with the
% token, the kind, the size of the text in bytes and the numbers, and behind it the text. The kind
% is "l" for a call of the loop, which runs already, and "q" when the link has closed.
% Octave's fgetl waits for the character after the line too.
function [kind, numbers, text] = TOKENnext ()
  persistent isOctave size
  if size
  else
    mlock ();
    isOctave = builtin ('exist', 'OCTAVE_VERSION', 'builtin') > 0;
    size = builtin ('numel', 'TOKEN');
  end
  kind = 'q';  numbers = [];  text = '';
  while true
    if isOctave, line = builtin ('fgetl', 0); else, line = builtin ('input', '', 's'); end
    if ~builtin ('ischar', line), return; end
    first = builtin ('strfind', line, 'TOKEN');
    if builtin ('isempty', first), continue; end
    head = line(first(1) + size:end);
    if first(1) == 1, break; end
    if builtin ('strncmp', head, 'loop(', 5)
      kind = 'l';
      numbers = builtin ('sscanf', head(6:end), '%d', 1);
      return;
    end
  end
  numbers = builtin ('sscanf', head(2:end), '%d')';
  bytes = numbers(1);
  if isOctave
    text = builtin ('fread', 0, bytes, 'char=>char')';
  else
    while builtin ('numel', text) < bytes, text = [text builtin('input', '', 's') char(10)]; end
  end
  kind = head(1);
  numbers = numbers(2:end);
  text = text(1:end - 1);
end
