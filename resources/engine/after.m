% What follows a script: its figures are drawn, then the values of its boxes are told, or its error.
% The link lets the engine look after its figures while it has nothing else to do.
function TOKENafter (boxes, problem, file)
  if isempty (problem)
    try
      if ~isempty (builtin ('get', 0, 'children'))
        drawnow ();
        TOKENtell ('f', '');
      end
    catch problem
    end
  end
  if isempty (problem)
    for box = boxes, TOKENvalue (box); end
  else
    TOKENfault (problem, file);
  end
end
