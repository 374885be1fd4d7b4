% The size of a value as " 2x3". What has a class of its own may answer anything, so it isn't asked.
function text = TOKENsize (value)
  text = '';
  if isnumeric (value) || islogical (value) || ischar (value) || iscell (value) || isstruct (value)
    text = sprintf ('x%d', size (value));
    text(1) = ' ';
  end
end
