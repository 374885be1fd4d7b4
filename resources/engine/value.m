% Tells the value of a box's variable, if there is one: class, size, range and first elements, and
% in a second line the curve of a real vector. No variable, not even "ans", and no message of the
% user's is touched.
function TOKENvalue (box)
  [message, id] = lasterr ();
  try
    % Any other expression than a variable's name would set "ans".
    value = evalin ('base', sprintf ('box%d', box));
    text = class (value);
    curve = '';
    isNumber = isnumeric (value) || islogical (value);
    % What has a class of its own may answer anything, so it isn't asked.
    if isNumber || ischar (value) || iscell (value) || isstruct (value)
      extent = sprintf ('x%d', size (value));
      text = [text ' ' extent(2:end)];
      if issparse (value)
        text = ['sparse ' text];
      elseif isNumber && ~isempty (value)
        [text, curve] = TOKENnumbers (text, value);
      elseif ischar (value) && size (value, 1) == 1
        letters = value(1:min (end, 60));
        letters(letters < 32) = ' ';
        text = [text ': ' letters];
      end
    end
    TOKENtell ('v', [sprintf('%d:', box) text(1:min (end, 240)) char(10) curve]);
  catch
    lasterr (message, id);
  end
end
