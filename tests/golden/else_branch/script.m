box1=2;
box2=box1;
if (box1>1),
      box3=0;disp(1);
   else
   box4=0;disp(2);
end;
box7=box2
