% The range of a value, taken from its first 20000 elements, and the first of these.
function text = TOKENelements (value)
  text = '';
  looked = 20000;
  shown = 8;
  count = numel (value);
  if ischar (value)
    if count > 0 && size (value, 1) == 1
      letters = value(1:min (count, 60));
      letters(letters < 32) = ' ';
      text = [': ' letters];
    end
    return;
  end
  if count == 0, return; end
  if isreal (value) && count > 1
    part = value(1:min (count, looked));
    text = sprintf (', %.5g to %.5g', min (part), max (part));
    if count > looked, text = sprintf ('%s in the first %d', text, looked); end
  end
  first = value(1:min (count, shown));
  if isreal (value)
    text = [text ':' sprintf(' %.5g', first)];
  else
    text = [text ':' sprintf(' %.5g%+.5gi', [real(first(:))'; imag(first(:))'])];
  end
  if count > shown, text = [text ' ...']; end
end
