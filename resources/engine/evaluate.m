% Evaluates a script in the user's workspace. It stands alone so that a "return" leaves nothing else.
function TOKENevaluate (script)
  evalin ('base', script);
end
