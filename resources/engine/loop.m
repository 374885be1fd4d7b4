% Does what the link asks for, one request after another, until the link closes. The mark "l" says
% that it has begun, the mark "u" that it was left: the user broke off a script, or the script ended
% the engine.
% Nothing here lives where a script can change it: the names of these functions are drawn by lot,
% their variables are their own, and what "clear" may take away is sent again (run.m).
function TOKENloop (call)
  mlock ();
  left = onCleanup (@() TOKENtell ('u', ''));
  TOKENtell ('l', builtin ('sprintf', '%d', call));
  while true
    [kind, numbers, text] = TOKENnext ();
    switch kind
      case 'r', TOKENrun (numbers(1), numbers(2:end), text);
      case 'l', TOKENtell ('l', builtin ('sprintf', '%d', numbers));
      case 'd', try, drawnow (); catch, end
      case 'q', return;
    end
  end
end
