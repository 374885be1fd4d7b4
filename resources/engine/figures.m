% Lets figures be made where nothing can show them: without a screen they stay invisible, and without
% a toolkit one is loaded that draws by another program, which is not needed as long as nothing is
% drawn.
function TOKENfigures ()
  warning ('off', 'Octave:gnuplot-graphics');
  if isempty (available_graphics_toolkits ())
    program = gnuplot_binary ('true');
    register_graphics_toolkit ('gnuplot');
    __init_gnuplot__ ();
    gnuplot_binary (program);
    eval (['function __gnuplot_drawnow__ (varargin),' ...
           'error (''No graphics toolkit can draw here: install gnuplot'');end']);
  end
  if isempty (getenv ('DISPLAY')) && ~ispc () && ~ismac ()
    set (0, 'defaultfigurevisible', 'off');
  end
end
