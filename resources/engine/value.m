% Tells the value of a box's variable, if there is one: class, size, range and first elements, and
% in a second line up to 64 points of a real vector. No variable, not even "ans", and no message of
% the user's is touched.
function TOKENvalue (box)
  [message, id] = lasterr ();
  try
    % Any other expression than a variable's name would set "ans".
    value = evalin ('base', sprintf ('box%d', box));
    text = [class(value) TOKENsize(value)];
    if issparse (value), text = ['sparse ' text]; end
    points = '';
    if TOKENisFull (value)
      text = [text TOKENelements(value)];
      count = numel (value);
      if isreal (value) && ~ischar (value) && isvector (value) && count > 1
        points = sprintf ('%.4g ', value(round (linspace (1, count, min (count, 64)))));
      end
    end
    TOKENtell ('v', sprintf ('%d:%s\n%s', box, text(1:min (end, 240)), points));
  catch
    lasterr (message, id);
  end
end
