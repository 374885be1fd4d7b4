1;
function check(number, value, worth, tolerance)
  value = double(value(:)); worth = worth(:);
  good = numel(value) == numel(worth) && all(abs(value - worth) <= tolerance * max(1, abs(worth)));
  if good, told = 'good'; else, told = mat2str(value', 17); end
  printf('\n@@ %d %s\n', number, told);
end
warning('off', 'all');
set(0, 'defaultfigurevisible', 'off');
global canDraw;
try, axes(); canDraw = true; catch, canDraw = false; end
function system_dependent(varargin), end
function show(name, values)
  global shown canDraw;
  if ! isfield(shown, name), shown.(name) = {}; end
  shown.(name){end + 1} = values;
  if canDraw, builtin(name, values{:}); end
end
function plot(varargin), show('plot', varargin); end
function hist(varargin), show('hist', varargin); end
function mesh(varargin), show('mesh', varargin); end
if ! canDraw
  for name = {'figure', 'title', 'xlabel', 'ylabel', 'zlabel', 'grid', 'hold'}
    eval(['function ' name{1} '(varargin), end']);
  end
end
