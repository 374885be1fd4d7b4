1;
function d = yprime(t, y), d = y; end
function try_line(name, inputs, line)
  told = 'runs';
  eval(inputs);
  try
    eval(["if 0\n" line "\nend"]);
    evalc(line);
  catch problem
    told = regexprep(strtok(problem.message, "\n"), " near line.*|\\. *Correct usage.*", "");
    if strncmp(told, 'parse error', 11), told = 'parse error'; end
  end
  printf("@@ %s\t%s\n", name, told);
end
warning('off', 'all');
