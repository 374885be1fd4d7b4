% Writes a script to a file that only this user can read, and returns its name; '' where there is no
% place for it, or where a script can't be loaded from any file, as in MATLAB.
function file = TOKENstore (text)
  file = '';
  if exist ('OCTAVE_VERSION', 'builtin') == 0, return; end
  try
    [id, name] = mkstemp ([tempdir() '/TOKENXXXXXX'], true);
    isWhole = fwrite (id, text) == numel (text);
    if fclose (id) == 0 && isWhole
      file = name;
    else
      unlink (name);
    end
  catch
  end
end
