% True for numbers and text whose first elements can be taken without unpacking the whole.
function answer = TOKENisFull (value)
  answer = ischar (value) || ((isnumeric (value) || islogical (value)) && ~issparse (value));
  if answer && exist ('typeinfo', 'builtin') > 0
    kind = typeinfo (value);
    answer = isempty (strfind (kind, 'diagonal')) && isempty (strfind (kind, 'permutation'));
  end
end
