% Tells why a script failed, and in which of its lines, 0 where that isn't known.
function TOKENfault (problem, file)
  line = 0;
  message = problem.message;
  if ~isempty (file)
    for k = 1:numel (problem.stack)
      if strcmp (problem.stack(k).file, file)
        line = problem.stack(k).line;
        break;
      end
    end
    message = strrep (message, [' of file ' file], '');
  end
  message(message == 1) = ' ';
  TOKENtell ('x', sprintf ('%d:%s', line, message));
end
