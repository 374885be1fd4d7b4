% Adds the range of a value, taken from its first 20000 elements, and the first of these to a text.
% So a large value is never copied. The second answer is the curve of a real vector.
function [text, curve] = TOKENnumbers (text, value)
  looked = 20000;
  shown = 8;
  curve = '';
  count = numel (value);
  % To take elements of these would unpack the whole.
  if count > looked && exist ('typeinfo', 'builtin') > 0
    kind = typeinfo (value);
    if any ([strfind(kind, 'diagonal') strfind(kind, 'permutation')]), return; end
  end
  isReal = isreal (value);
  if isReal && count > 1
    part = value(1:min (count, looked));
    text = [text sprintf(', %.5g to %.5g', min (part), max (part))];
    if count > looked, text = [text sprintf(' in the first %d', looked)]; end
    if isvector (value), curve = TOKENcurve (value, count); end
  end
  first = value(1:min (count, shown));
  if isReal
    text = [text ':' sprintf(' %.5g', first)];
  else
    text = [text ':' sprintf(' %.5g%+.5gi', [real(first(:))'; imag(first(:))'])];
  end
  if count > shown, text = [text ' ...']; end
end
